# Shader packages are made by the build with exactly two GLSL targets: 300 es and 330.

# atelier_add_shaders(TARGET NAME name PREFIX resource-prefix BASE folder SOURCES file...)
# Bakes every source, named relative to BASE, into BASE-relative.qsb and puts the packages into the resources of TARGET
# under PREFIX, with the same relative path. NAME is unique among the resources of TARGET. Sources may include snippets
# (`#include "../common/noise.glsl"`); a changed snippet bakes again what includes it.
function(atelier_add_shaders target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;PREFIX;BASE" "SOURCES")
    set(output_folder "${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}")
    set(packages)
    foreach(source IN LISTS arg_SOURCES)
        set(package "${output_folder}/${source}.qsb")
        cmake_path(GET package PARENT_PATH package_folder)
        file(MAKE_DIRECTORY "${package_folder}")
        # qsb cannot leave SPIR-V out, and nothing here reads it: it is erased afterwards, two thirds of the package.
        add_custom_command(
            OUTPUT "${package}"
            COMMAND Qt6::qsb --glsl "300 es,330" --depfile "${package}.d" -o "${package}"
                    "${arg_BASE}/${source}"
            COMMAND Qt6::qsb -s -e spirv,100 "${package}"
            COMMAND "${CMAKE_COMMAND}" "-DFILE=${package}.d" -P "${PROJECT_SOURCE_DIR}/cmake/EscapeDepfile.cmake"
            DEPENDS "${arg_BASE}/${source}" Qt6::qsb
            DEPFILE "${package}.d"
            COMMENT "Baking shader ${source}"
            VERBATIM)
        list(APPEND packages "${package}")
    endforeach()
    # A static library's resources register themselves: Qt links them as objects into every program that uses it.
    qt_add_resources(${target} ${arg_NAME} PREFIX "${arg_PREFIX}" BASE "${output_folder}" FILES ${packages})
endfunction()
