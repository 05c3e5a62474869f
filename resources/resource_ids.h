// Identifiers of the program's resources, shared by the .rc file and the code.
#pragma once

#define IDI_TARVEX 1
