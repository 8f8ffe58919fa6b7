# SPDX-License-Identifier: Apache-2.0
# Debian packages by cpack: tarsil with the programs, tarsil-doc with the documents.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarsil)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "post-processing of flutter analyses")
set(CPACK_PACKAGE_CONTACT "The developers of Tarsil <developers@tarsil.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/SameTimes.cmake)
# Folders have the usual permissions whatever the umask of the builder is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL program doc)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME tarsil)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# The images of the windows need the SVG plug-in, which no program links.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "libqt6svg6, fonts-liberation")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "tarsil-doc, libreoffice-calc")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
    "Tarsil reads the modal evolutions of flutter solvers: damping and frequency of
each aeroelastic mode as the speed grows. It draws them as V-g-f plots, finds
the speeds at which modes become unstable, and writes pictures and tables for
reports. tarsil-batch does the same for many files from the command line.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME tarsil-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOC_DESCRIPTION
    "The user's guide of Tarsil, the descriptions of its file formats, and its
benchmarks. Tarsil draws V-g-f plots of modal evolutions and finds flutter
speeds.")

include(CPack)
