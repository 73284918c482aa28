# What differs between the two packages: the archive unpacks into one folder that runs from anywhere.
if(CPACK_GENERATOR STREQUAL TGZ)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_PACKAGE_FILE_NAME ${CPACK_ARCHIVE_FILE_NAME})
endif()
