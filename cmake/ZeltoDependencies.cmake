# SPDX-License-Identifier: GPL-3.0-or-later
# The libraries the project stands on; scripts/packages.txt names the Debian packages that hold them.
include_guard()
find_package(PkgConfig REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Svg)
find_package(JPEG REQUIRED)
find_package(GIF REQUIRED)
find_package(ICU REQUIRED COMPONENTS i18n uc)
find_package(tl-expected REQUIRED)
pkg_check_modules(lcms2 REQUIRED IMPORTED_TARGET lcms2)
pkg_check_modules(exiv2 REQUIRED IMPORTED_TARGET exiv2)
pkg_check_modules(imagequant REQUIRED IMPORTED_TARGET imagequant)
pkg_check_modules(qrencode REQUIRED IMPORTED_TARGET libqrencode)
pkg_check_modules(hwy REQUIRED IMPORTED_TARGET libhwy)
