# All targets in one program, and a test for each input: its seeds, and a fixed number of changes of
# them, which takes a second or two.
add_executable(fuzz-replay replay.cpp)
foreach(input IN LISTS kit_inputs packing_inputs program_inputs)
    string(MAKE_C_IDENTIFIER fuzz_${input} name)
    target_sources(fuzz-replay PRIVATE ${input}.cpp)
    # Each of them has these two names.
    set_source_files_properties(${input}.cpp PROPERTIES COMPILE_DEFINITIONS
        "LLVMFuzzerTestOneInput=${name};LLVMFuzzerInitialize=${name}_initialize")
endforeach()
foreach(target IN ITEMS fuzz-seeds fuzz-replay)
    target_link_libraries(${target}
        PRIVATE VaskerMap VaskerReleasePacking VaskerForeignDatabase VaskerTestSupport vasker_warnings)
endforeach()
# As the tests' own files.
target_compile_options(fuzz-replay PRIVATE -O0 -fno-sanitize=undefined)

set(corpora ${CMAKE_CURRENT_BINARY_DIR}/corpora)
add_test(NAME Fuzz.seeds COMMAND fuzz-seeds ${PROJECT_SOURCE_DIR} ${corpora})
set_tests_properties(Fuzz.seeds PROPERTIES FIXTURES_SETUP fuzz_seeds)
function(vasker_replay input changes)
    add_test(NAME Fuzz.${input} COMMAND fuzz-replay ${input} ${corpora}/${input} ${changes})
    set_tests_properties(Fuzz.${input} PROPERTIES
        FIXTURES_REQUIRED fuzz_seeds
        TIMEOUT 120
        ENVIRONMENT "ASAN_OPTIONS=handle_abort=1:quarantine_size_mb=32")
endfunction()
vasker_replay(archive 1000)
vasker_replay(bundle 400)
vasker_replay(cache 800)
vasker_replay(csv 5000)
vasker_replay(date-time 150000)
vasker_replay(decode 3000)
vasker_replay(description 3000)
vasker_replay(geojson 20000)
vasker_replay(image 10000)
vasker_replay(painting 800)
vasker_replay(preferences 50)
vasker_replay(release 200)
vasker_replay(response 6000)
vasker_replay(text 4000)
vasker_replay(tile 10000)
vasker_replay(web-address 200000)
