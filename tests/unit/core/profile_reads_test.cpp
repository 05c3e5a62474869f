// The keys and values a section gives read key by key, from the section's lines. The
// Wine tier checks the same rules against the platform on random files.
#include "core/profile_reads.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Keys = std::vector<std::pair<std::string, std::string>>;

Keys Read(const std::vector<std::string>& lines, std::size_t limit = 254) {
    const std::vector<std::string_view> views(lines.begin(), lines.end());
    Keys keys;
    for (const auto& [key, value] : ProfileReads::KeysAsRead(views, limit))
        keys.emplace_back(key, value);
    return keys;
}

} // namespace

TEST(ProfileReads, KeysReadAsTheKeyByKeyReadsWould) {
    struct Case {
        const char* what;
        std::vector<std::string> lines;
        Keys keys;
    };
    const Case cases[] = {
        {"plain, in file order", {"b=2", "a=1"}, {{"b", "2"}, {"a", "1"}}},
        {"blanks around both sides go", {" a \t= \t1 x "}, {{"a", "1 x"}}},
        {"a duplicate reads the first, whatever its case", {"Key=1", "kEY=2"}, {{"Key", "1"}, {"kEY", "1"}}},
        {"only ASCII letters fold", {"\xC3\xA9=1", "\xC3\x89=2"}, {{"\xC3\xA9", "1"}, {"\xC3\x89", "2"}}},
        {"the value is cut at the first '=' only", {"a=b=c"}, {{"a", "b=c"}}},
        {"a line without '=' is no key, but shadows a later one", {"a", "A=5", "b=6"}, {{"A", ""}, {"b", "6"}}},
        {"an empty name ends the list", {"a=1", "=x", "b=2"}, {{"a", "1"}}},
        {"empty values", {"a=", "b=  "}, {{"a", ""}, {"b", ""}}},
        {"matching quotes go, once",
         {"a=\"x y\"", "b='z'", "c=\"\"", "d=\"'", "e=\"", "f=\"a\"b\"", "g=\" s \""},
         {{"a", "x y"}, {"b", "z"}, {"c", ""}, {"d", "\"'"}, {"e", "\""}, {"f", "a\"b"}, {"g", " s "}}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Read(c.lines), c.keys) << c.what;
}

TEST(ProfileReads, AValueIsCutAfterItsQuotesGo) {
    const std::string longText(300, 'x');
    EXPECT_EQ(Read({"a=" + longText})[0].second, std::string(254, 'x'));
    EXPECT_EQ(Read({"a=\"" + std::string(254, 'y') + "\""})[0].second, std::string(254, 'y'));
    EXPECT_EQ(Read({"a=\"abcd\""}, 3)[0].second, "abc");
}
