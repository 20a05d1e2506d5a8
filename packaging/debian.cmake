# The Debian package, made by the target "package". dpkg-shlibdeps finds what it depends on.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ardeo-ip-config)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Ardeo IP Config developers <maintainers@ardeo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "switch the IPv4 and DNS settings of network services")
set(CPACK_PACKAGE_DESCRIPTION
    "Ardeo IP Config switches the IPv4 and DNS settings of this computer's
network services (Wi-Fi, Ethernet, VPN and others) in a few clicks: pick a
service, set what you want, apply it, and the change is in force. Settings
are saved as named profiles, which can be exported and imported.

It works over NetworkManager and asks for an administrator's consent once
per run. A simulated machine lets it be tried without touching a network.
The package has the window, ardeo-ip-config, and the console program,
ardeoctl.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt loads both at run time, so that nothing tells of them; without the first no window opens at all.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "network-manager, polkitd, qt6-wayland")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/finish.cmake)
include(CPack)
