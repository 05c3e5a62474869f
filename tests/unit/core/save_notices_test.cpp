#include "core/save_notices.h"

#include "support/answered_message_boxes.h"

#include <gtest/gtest.h>

using SaveNotices::Kind;

TEST(SaveNotices, EachKindOfFileIsToldOnceARunWithWhatWhyAndThatTheOldFileStays) {
    TestSupport::AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    SaveNotices::Told told;
    const struct {
        Kind kind;
        const char* expected; // the box's text, or none when this failure is not told
    } attempts[] = {
        {Kind::SettingsFile,
         "The settings could not be saved.\nWhy 0\n\nThe old settings file was left as it was. The changes are in use "
         "until Tarvex ends. Saves that fail again in this run are not told."},
        {Kind::SettingsFile, nullptr},
        {Kind::MenuFile,
         "The menus could not be saved.\nWhy 2\n\nThe old menu file was left as it was. The changes are in use until "
         "Tarvex ends. Saves that fail again in this run are not told."},
        {Kind::MenuFile, nullptr},
        {Kind::SettingsFile, nullptr},
    };
    std::size_t shown = 0;
    for (std::size_t i = 0; i < std::size(attempts); ++i) {
        told.Tell(attempts[i].kind, "Why " + std::to_string(i));
        if (!attempts[i].expected) {
            EXPECT_EQ(boxes.requests.size(), shown) << "attempt " << i << " was told again";
            continue;
        }
        ASSERT_EQ(boxes.requests.size(), ++shown) << "attempt " << i;
        EXPECT_EQ(boxes.requests.back().text, attempts[i].expected);
        EXPECT_EQ(boxes.requests.back().title, "Tarvex Warning");
        EXPECT_EQ(boxes.requests.back().style, MessageBoxes::kExclamation);
    }
    EXPECT_FALSE(told.First(Kind::MenuFile)) << "a caller with its own text is held to the same once";
    EXPECT_TRUE(SaveNotices::Told().First(Kind::MenuFile)) << "a new run tells again";
}
