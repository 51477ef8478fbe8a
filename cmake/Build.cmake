# What keeps builds quick, and the names of views. With CMAKE_UNITY_BUILD sources are compiled in groups,
# which is the quickest for a build from nothing; without it, only what has changed is compiled.
if(CMAKE_UNITY_BUILD)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON) # little is left to save, and clang-tidy cannot read them
endif()

# The headers of Qt that most sources include, compiled once for all targets. A source still includes
# all that it uses: the test HeadersCompileAlone has none of this.
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/qt_headers.cpp CONTENT "// Nothing but its precompiled headers.\n")
add_library(vasker_qt_headers STATIC EXCLUDE_FROM_ALL ${PROJECT_BINARY_DIR}/qt_headers.cpp)
set_target_properties(vasker_qt_headers PROPERTIES AUTOMOC OFF)
target_link_libraries(vasker_qt_headers PRIVATE Qt6::Quick Qt6::DBus vasker_warnings vasker_qt_rules)
target_precompile_headers(vasker_qt_headers PRIVATE
    <QtCore/QtCore> <QtGui/QtGui> <QtQml/QtQml> <QtQuick/QtQuick> <QtDBus/QtDBus>)

# For a target that links Qt Quick.
function(vasker_reuse_qt_headers target)
    target_precompile_headers(${target} REUSE_FROM vasker_qt_headers)
endfunction()

# For a QML module, before qt_add_qml_module: a view has the name of its file, whatever its folder.
function(vasker_name_views_by_file)
    foreach(view IN LISTS ARGN)
        get_filename_component(name ${view} NAME)
        set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
    endforeach()
endfunction()

# For a QML module, after qt_add_qml_module: views are compiled to bytecode, not to C++, and their
# generated sources as one.
function(vasker_compile_views_quickly target)
    set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
    if(NOT CMAKE_UNITY_BUILD)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources INCLUDE REGEX "/qmlcache/")
        set_source_files_properties(${sources} PROPERTIES UNITY_GROUP views)
    endif()
endfunction()
