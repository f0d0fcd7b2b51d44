# SPDX-License-Identifier: GPL-3.0-or-later
# CPack reads this once for each kind of package. The .deb is stripped when its debug symbols are put into a package of
# their own; an archive has no such place.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(CPACK_STRIP_FILES ON)
endif()
