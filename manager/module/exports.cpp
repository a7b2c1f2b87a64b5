// SPDX-License-Identifier: MIT
#include "CKvStandardsModule.h"
#include "OdRxWin32Module.h"
#include "lineweightNames.h"

// What the host and its other modules find in the file, and nothing else: KvStandards.map lists the
// same names.

extern "C" {
[[gnu::visibility("default")]] OdRxModule *odrxCreateModuleObject(OdRxModuleHandle &handle);
[[gnu::visibility("default")]] void odrxGetAPIVersion(std::uint32_t &major,
                                                      std::uint32_t &minor,
                                                      std::uint32_t &majorBuild,
                                                      std::uint32_t &minorBuild);
}
// Other modules use the names of lineweights too. Named in the file as users of it say it, without
// the marks that a compiler adds.
[[gnu::visibility("default")]] CKvString
exportedLineweightName(OdDb::LineWeight lineWeight) __asm__("ConvertLineweightToName");

OdRxModule *odrxCreateModuleObject(OdRxModuleHandle &handle)
{
    return OdRxWin32Module<CKvStandardsModule, CKvStandardsModule>::instance(handle);
}

void odrxGetAPIVersion(std::uint32_t &major,
                       std::uint32_t &minor,
                       std::uint32_t &majorBuild,
                       std::uint32_t &minorBuild)
{
    major = 4;
    minor = 1;
    majorBuild = 1;
    minorBuild = 72960;
}

CKvString exportedLineweightName(OdDb::LineWeight lineWeight)
{
    return ConvertLineweightToName(lineWeight);
}
