# shellcheck shell=bash
# To be sourced. Configuring and building by preset, each in build/<preset>.

# Configures a preset, unless that has been done in this place since the presets last changed. (A
# change in a CMakeLists.txt is seen by the build itself.) What the environment says about compilers
# is left out: a build is to be the same for everybody.
configureOnce()
{
    local preset=$1
    local stamp=build/$preset/.configured
    if [ "$(cat "$stamp" 2> /dev/null)" = "$PWD ${*:2}" ] && [ "$stamp" -nt CMakePresets.json ]; then
        return
    fi
    env -u CXXFLAGS -u LDFLAGS CXX=g++ \
        cmake --fresh --log-level=WARNING --preset "$preset" "${@:2}"
    echo "$PWD ${*:2}" > "$stamp"
}

# Builds a preset's given targets, or all of them.
buildPreset()
{
    cmake --build --preset "$1" --parallel "$(nproc)" ${2:+--target "${@:2}"}
}
