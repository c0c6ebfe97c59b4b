# The .deb: cpack --config BUILD/CPackConfig.cmake -G DEB. What the program is linked against is found by
# dpkg-shlibdeps; what it loads or reads when it runs is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrelfen)
set(CPACK_PACKAGE_CONTACT "Kestrelfen developers <developers@kestrelfen.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "eye-break timer that lives in the tray")
set(CPACK_PACKAGE_DESCRIPTION
    "Kestrelfen covers every display for a short break after each work interval,
counts it down, and goes on; every fourth break is a long one. It waits while
the person is away, and holds breaks back during calls, videos and screen
captures where that is chosen.
.
It keeps screen time by application, display and website, the history of
breaks, and tasks. No account, no analytics, no network.")
# By its component: else the list of what is installed on this machine would be written over.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};program;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/finish.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtquick, qml6-module-qtqml, qml6-module-qtqml-workerscript, fonts-inter, fonts-jetbrains-mono, tzdata")
# Without them: nothing on Wayland desktops without an X server; no tray of the desktop's own, no second start that
# opens the popover; no notifications.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "qt6-wayland, default-dbus-session-bus | dbus-session-bus, notification-daemon")
# Without it: no websites.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS at-spi2-core)
