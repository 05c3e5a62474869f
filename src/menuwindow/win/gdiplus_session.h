// GDI+ started once for the whole run, the first time a picture needs decoding, and shut
// down when the program ends.
#pragma once

namespace MenuWindow {

// True when GDI+ is running (it is started on the first call).
bool EnsureGdiplus();

} // namespace MenuWindow
