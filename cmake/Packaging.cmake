# The Debian package: "cpack -G DEB" in the build folder makes quovara_<version>_<arch>.deb
# with the program, the desktop entry and file-manager actions, the MIME type, the icons, the
# AppStream metainfo and the manual page, installed under /usr. Its dependencies on shared
# libraries (Qt 6 and the C++ run-time) are found by dpkg-shlibdeps (package dpkg-dev); it
# also depends on xdg-utils, whose xdg-open opens files, and on libarchive13, which writes the
# archives a conversion makes, and on qt6-translations-l10n, which translates Qt's own buttons and
# dialogs.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quovara)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Quovara developers")
set(CPACK_PACKAGE_CONTACT "The Quovara developers <quovara@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "archive manager for UHARC archives")
set(CPACK_PACKAGE_DESCRIPTION
    "Quovara browses UHARC archives (.uha) as folder trees, searches them, extracts all, some
or one item, adds files with every engine option, tests archives and builds
self-extracting programs. Every operation is a run of the UHARC engine, a separate
Windows console program that is not included: it runs through wine, and the command
quovara --install-engine puts it in place.")
# The install scripts write the desktop entry and the file-manager actions with the path of the
# installed program: they must see the final prefix (/usr) and stage through DESTDIR, which
# also leaves the desktop caches to the package's triggers. With DESTDIR staging, CPack
# installs into CPACK_INSTALL_PREFIX.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Quovara developers <quovara@example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://quovara.example.org")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Files are opened (a single item run, an extraction's folder) through xdg-open; the
# dependencies on shared libraries found by dpkg-shlibdeps are added to this list.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "xdg-utils, libarchive13, qt6-translations-l10n")
# The engine runs through wine; without it the program says so and how to install it.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "wine")

include(CPack)
