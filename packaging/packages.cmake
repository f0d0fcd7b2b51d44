# SPDX-License-Identifier: GPL-3.0-or-later
# The packages: a .deb with its debug symbols apart, and a tar archive of the same tree.
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME zelto)
set(CPACK_PACKAGE_VENDOR Zelto)
set(CPACK_PACKAGE_CONTACT "${ZELTO_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${ZELTO_HOMEPAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "watermarks for batches of photos")
set(CPACK_PACKAGE_DESCRIPTION_FILE "${CMAKE_CURRENT_SOURCE_DIR}/debian/description")
set(CPACK_PACKAGE_FILE_NAME "zelto-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# What is said for one kind of package only.
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/one_kind.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0zelto1)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
# The libraries that are linked are found out; these are what the programs look for while they run.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libimage-exiftool-perl, libqt6svg6, qt6-image-formats-plugins, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-liberation2, fonts-noto-core, fonts-noto-cjk, fonts-noto-color-emoji")
include(CPack)
