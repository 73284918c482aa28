# Run by CPack when the files lie in the folder that a package is made of: the prefix that they were
# given until here is that folder's.
set(share ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
set(service ${share}/dbus-1/services/${CPACK_CALDERIN_APP_ID}.service)
if(CPACK_GENERATOR STREQUAL TGZ)
    # The bus wants an absolute path, which an archive that runs from anywhere doesn't have.
    file(REMOVE_RECURSE ${share}/dbus-1)
    set(entry ${share}/applications/${CPACK_CALDERIN_APP_ID}.desktop)
    file(READ ${entry} text)
    string(REPLACE "DBusActivatable=true\n" "" text "${text}")
    file(WRITE ${entry} "${text}")
else()
    set(CALDERIN_APP_ID ${CPACK_CALDERIN_APP_ID})
    set(CMAKE_INSTALL_PREFIX ${CPACK_PACKAGING_INSTALL_PREFIX})
    configure_file(${CMAKE_CURRENT_LIST_DIR}/calderin-m4a.service.in ${service} @ONLY)
endif()
