# The translations, compiled into the program.
qt_add_lrelease(VaskerApp
    TS_FILES
        ${PROJECT_SOURCE_DIR}/resources/translations/vasker_en.ts
        ${PROJECT_SOURCE_DIR}/resources/translations/vasker_fr.ts
    QM_FILES_OUTPUT_VARIABLE translations)
qt_add_resources(VaskerApp app_translations
    PREFIX /translations
    BASE ${CMAKE_CURRENT_BINARY_DIR}
    FILES ${translations})

# The user guide, likewise.
set(guide ${PROJECT_SOURCE_DIR}/docs/guide)
qt_add_resources(VaskerApp app_guide
    PREFIX /guide
    BASE ${guide}
    FILES ${guide}/en.md ${guide}/fr.md)

# The files that travel with the program: beside the executable in the build tree, in
# share/vasker-open-map of the prefix when installed.
file(GLOB resources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/resources/*.json
    ${PROJECT_SOURCE_DIR}/resources/*.mbtiles)
set(copies "")
foreach(resource IN LISTS resources)
    get_filename_component(name ${resource} NAME)
    set(copy ${CMAKE_CURRENT_BINARY_DIR}/resources/${name})
    add_custom_command(
        OUTPUT ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${resource} ${copy}
        COMMAND ${CMAKE_COMMAND} -E touch ${copy}
        DEPENDS ${resource}
        COMMENT "Placing ${name} beside the program")
    list(APPEND copies ${copy})
endforeach()
add_custom_target(VaskerResources DEPENDS ${copies})
add_dependencies(VaskerOpenMap VaskerResources)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/resources)

install(TARGETS VaskerOpenMap RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${resources} DESTINATION ${CMAKE_INSTALL_DATADIR}/vasker-open-map COMPONENT data)
