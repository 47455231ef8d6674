# The Debian packages libdevview1, libdevview-dev and upsdesk, one from each install component:
#   cmake --build --preset release --target packages      # build/release/packages/*.deb
set(here ${CMAKE_CURRENT_LIST_DIR})
set(libdevview libdevview${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME devview)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # the first line of each description below
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(debian_version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(CPACK_PACKAGE_CONTACT "devView developers <devview@devview.invalid>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library dev)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE devview)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/dev)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${here}/documents.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${here}/control.cmake)

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${libdevview})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${here}/triggers)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "Qt 5 widgets that show one uninterruptible power supply
devView shows where the power of an uninterruptible power supply comes from
and where it goes: an animated diagram of the energy flow, the alarms, all
readings by name, gauges and trend charts, and a page of commands.
.
This package contains the shared library.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libdevview-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${libdevview} (= ${debian_version}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS qttools5-dev-tools)
set(CPACK_DEBIAN_DEV_DESCRIPTION "Qt 5 widgets that show one UPS - development files
devView shows where the power of an uninterruptible power supply comes from
and where it goes: an animated diagram of the energy flow, the alarms, all
readings by name, gauges and trend charts, and a page of commands.
.
This package contains the headers, the CMake package, the pkg-config file and
the plug-in that offers the widgets in Qt Designer.")

if(TARGET upsdesk)
    list(APPEND CPACK_COMPONENTS_ALL upsdesk)
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_NAME upsdesk)
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_SECTION admin)
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_DEPENDS
        "${libdevview} (>= ${PROJECT_VERSION}), libqt5sql5-sqlite, fonts-dejavu-core | fonts-liberation")
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_RECOMMENDS "libqt5sql5-psql, qttranslations5-l10n, fonts-noto-cjk | fonts-wqy-microhei")
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_SUGGESTS "nut-client, postgresql, prometheus")
    set(CPACK_DEBIAN_UPSDESK_PACKAGE_CONTROL_EXTRA ${here}/postinst ${here}/prerm ${here}/postrm)
    set(CPACK_DEBIAN_UPSDESK_DESCRIPTION "desktop application that watches uninterruptible power supplies
upsdesk watches many uninterruptible power supplies at once, through Network
UPS Tools or SNMP, and says within a second where the power comes from, where
it goes, what is wrong and since when, and how long the battery will last. It
carries commands to the devices for operators who may, and keeps a history.
.
On the command line it answers monitoring systems, paints pictures and
exports the history; as a collector it records and notifies without a window.")
endif()

include(CPack)
add_custom_target(packages
    COMMAND ${CMAKE_CPACK_COMMAND} --config ${PROJECT_BINARY_DIR}/CPackConfig.cmake
    COMMENT "Making the Debian packages" VERBATIM USES_TERMINAL)
foreach(part devView devviewdesigner upsdesk)
    if(TARGET ${part})
        add_dependencies(packages ${part})
    endif()
endforeach()
