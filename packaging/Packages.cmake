# Packages of the installed files: `cpack -G DEB` and `cpack -G RPM` in the build folder of the preset
# release. One holds the programs, one the release and the basemap, which fit every processor.
set(CPACK_PACKAGE_NAME vasker-open-map)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "map of Canadian energy infrastructure")
set(CPACK_PACKAGE_VENDOR "The Vasker maintainers")
set(CPACK_PACKAGE_CONTACT "The Vasker maintainers <maintainers@vasker.ca>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${PROJECT_HOMEPAGE_URL})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_SET_DESTDIR ON) # so that the session bus's file names the prefix of the package
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/OpenFolders.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/CPackGenerator.cmake)
configure_file(CPackGenerator.cmake.in CPackGenerator.cmake @ONLY)

set(program_text
"Vasker Beta shows one packaged release of open data: the facilities and
pipelines that publishers have reported, in a list and on a map, each value
with its source and its period. The basemap is there without a network. The
package also holds openmap-release, which makes, checks and reads releases.")
set(data_text
"The release of open data that the viewer vasker-open-map shows, and its
built-in basemap.")

# Debian
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME vasker-open-map)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "${program_text}")
string(JOIN ", " CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS
    "vasker-open-map-data (= ${PROJECT_VERSION})"
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-layouts
    qml6-module-qtquick-controls qml6-module-qtquick-templates
    qml6-module-qtquick-dialogs qml6-module-qt-labs-folderlistmodel
    qt6-qpa-plugins)
string(JOIN ", " CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS
    qt6-wayland qt6-translations-l10n xdg-desktop-portal libgl1-mesa-dri ca-certificates
    fonts-inter "fonts-dejavu-core | fonts-noto-core")
set(CPACK_DEBIAN_DATA_PACKAGE_NAME vasker-open-map-data)
set(CPACK_DEBIAN_DATA_PACKAGE_SECTION science)
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DATA_DESCRIPTION "${data_text}")

# What Debian wants in every package beside the files of all installations.
vasker_compress(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
add_custom_target(VaskerDebianChangelog ALL DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
foreach(component IN ITEMS program data)
    string(TOUPPER ${component} COMPONENT)
    install(FILES debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION share/doc/${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME}
        COMPONENT debian_${component}
        EXCLUDE_FROM_ALL)
endforeach()

# RPM: with the names that Fedora gives to packages. What the programs link comes from the tools of RPM.
set(CPACK_RPM_COMPONENT_INSTALL ON)
set(CPACK_RPM_MAIN_COMPONENT program)
set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_GROUP Applications/Engineering)
set(CPACK_RPM_PACKAGE_LICENSE "Apache-2.0 AND OGL-Canada-2.0 AND CC-BY-4.0")
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
    /usr/share/applications /usr/share/bash-completion /usr/share/bash-completion/completions
    /usr/share/dbus-1 /usr/share/dbus-1/services /usr/share/doc /usr/share/icons
    /usr/share/icons/hicolor /usr/share/icons/hicolor/scalable /usr/share/icons/hicolor/scalable/apps
    /usr/share/icons/hicolor/symbolic /usr/share/icons/hicolor/symbolic/apps
    /usr/share/man /usr/share/man/man1 /usr/share/metainfo)
set(CPACK_RPM_PROGRAM_PACKAGE_NAME vasker-open-map)
set(CPACK_RPM_PROGRAM_PACKAGE_SUMMARY "Map of Canadian energy infrastructure")
set(CPACK_RPM_PROGRAM_PACKAGE_DESCRIPTION "${program_text}")
set(CPACK_RPM_PROGRAM_PACKAGE_REQUIRES "vasker-open-map-data = ${PROJECT_VERSION}, qt6-qtdeclarative")
set(CPACK_RPM_DATA_PACKAGE_NAME vasker-open-map-data)
set(CPACK_RPM_DATA_PACKAGE_ARCHITECTURE noarch)
set(CPACK_RPM_DATA_PACKAGE_SUMMARY "Release and basemap of vasker-open-map")
set(CPACK_RPM_DATA_PACKAGE_DESCRIPTION "${data_text}")

include(CPack)
