# The warnings every target of ours is built with; linked PRIVATE, so that no consumer inherits them.
# Errors only where a preset asks for it (VASKER_WARNINGS_AS_ERRORS), never for packagers.
option(VASKER_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)

# Where sources are compiled in groups, the compiler warns about types without linkage in "headers",
# which are sources, about names of other sources, and about null pointers that are not there.
set(no_false_alarms)
if(CMAKE_UNITY_BUILD)
    set(no_false_alarms -Wno-subobject-linkage -Wno-null-dereference -Wno-shadow -Wshadow=local)
endif()

add_library(vasker_warnings INTERFACE)
target_compile_options(
    vasker_warnings
    INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
              -Woverloaded-virtual -Wnull-dereference -Wdouble-promotion -Wimplicit-fallthrough
              ${no_false_alarms} $<$<BOOL:${VASKER_WARNINGS_AS_ERRORS}>:-Werror>)

# Qt code: no implicit texts from bytes, no keyword macros.
add_library(vasker_qt_rules INTERFACE)
target_compile_definitions(vasker_qt_rules INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                     QT_NO_KEYWORDS)

# A target's code that Qt's tools generate is not ours to mend.
function(vasker_quiet_generated_code target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "_(qmltyperegistrations|qmlcache_loader).cpp$")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
    foreach(generated IN ITEMS ${target}_qmlcache ${target}plugin ${target}plugin_init)
        if(TARGET ${generated})
            target_compile_options(${generated} PRIVATE -w)
        endif()
    endforeach()
endfunction()
