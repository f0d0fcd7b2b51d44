// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/lcms.h"

#include <QtGlobal>

#include <lcms2_plugin.h>

#include <cstdlib>
#include <new>

namespace zelto {
namespace {

thread_local bool ranOut = false;

// No profile of colours needs more at a time; lcms2 has the same limit without this.
constexpr cmsUInt32Number MostBytes = 512U << 20;

void* noted(void* memory) {
    if (memory == nullptr) ranOut = true;
    return memory;
}

void* allocate(cmsContext, cmsUInt32Number bytes) {
    return bytes > MostBytes ? nullptr : noted(std::malloc(bytes));
}

void release(cmsContext, void* memory) {
    std::free(memory);
}

void* reallocate(cmsContext, void* memory, cmsUInt32Number bytes) {
    return bytes > MostBytes ? nullptr : noted(std::realloc(memory, bytes));
}

}  // namespace

LcmsMemory::LcmsMemory() {
    static const bool watched = [] {
        static cmsPluginMemHandler handler{{cmsPluginMagicNumber, 2060, cmsPluginMemHandlerSig, nullptr},
                                           allocate,
                                           release,
                                           reallocate,
                                           nullptr,
                                           nullptr,
                                           nullptr};
        return cmsPlugin(&handler) != 0;
    }();
    Q_UNUSED(watched)
    ranOut = false;
}

void LcmsMemory::check() const {
    if (ranOut) throw std::bad_alloc();
}

}  // namespace zelto
