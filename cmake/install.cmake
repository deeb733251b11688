# Installs the library, its public headers (with those of the sibling
# modules that the interfaces use), a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS kazparser EXPORT kazparserTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(DIRECTORY
    ${PROJECT_SOURCE_DIR}/parser.api/include/
    ${PROJECT_SOURCE_DIR}/libs/memobject/include/
    ${PROJECT_SOURCE_DIR}/libs/kazexception/include/
    ${PROJECT_SOURCE_DIR}/libs/ioutils/include/
    ${PROJECT_SOURCE_DIR}/libs/environmentadapter/include/
    ${PROJECT_SOURCE_DIR}/libs/xml/include/
    ${PROJECT_SOURCE_DIR}/libs/tableobj/include/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")

install(EXPORT kazparserTargets
    NAMESPACE kazparser::
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kazparser)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kazparserConfig.cmake.in
    ${PROJECT_BINARY_DIR}/kazparserConfig.cmake
    INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kazparser)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kazparserConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/kazparserConfig.cmake
    ${PROJECT_BINARY_DIR}/kazparserConfigVersion.cmake
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kazparser)

# The .pc file finds the prefix relative to itself, so the install can move.
file(RELATIVE_PATH KAZPARSER_PC_TO_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file(${PROJECT_SOURCE_DIR}/cmake/kazparser.pc.in ${PROJECT_BINARY_DIR}/kazparser.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kazparser.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
