# Read by CPack before each kind of package: which of the two layouts it gets.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(layout installed)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(layout portable)
    set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF) # the layout's own folder is the one
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build};TallyStrata;${layout};/")
