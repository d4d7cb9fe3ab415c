# shellcheck shell=bash
# To be sourced. Configuring and building by preset, each in a folder of its own.

buildRoot=build # where those folders lie

# Configures a preset, unless that has been done in this place since the presets last changed. (A
# change in a CMakeLists.txt is seen by the build itself.) What the environment says about compilers
# is left out: a build is to be the same for everybody.
configureOnce()
{
    local folder=$buildRoot/$1
    local stamp=$folder/.configured
    if [ "$(cat "$stamp" 2> /dev/null)" = "$PWD" ] && [ "$stamp" -nt CMakePresets.json ]; then
        return
    fi
    env -u CXXFLAGS -u LDFLAGS CXX=g++ \
        cmake --fresh --log-level=WARNING --preset "$1" -B "$folder"
    echo "$PWD" > "$stamp"
}

# Builds a preset's given targets, or all of them.
buildPreset()
{
    cmake --build "$buildRoot/$1" --parallel "$(nproc)" ${2:+--target "${@:2}"}
}
