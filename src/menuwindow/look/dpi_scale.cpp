#include "menuwindow/look/dpi_scale.h"

#include <cstdint>

namespace Dpi {

int Scale(int px, int dpi) {
    if (dpi <= 0)
        return px;
    std::int64_t product = static_cast<std::int64_t>(px) * dpi;
    std::int64_t half = kBaseDpi / 2;
    std::int64_t scaled = product >= 0 ? (product + half) / kBaseDpi : -((-product + half) / kBaseDpi);
    return static_cast<int>(scaled);
}

} // namespace Dpi
