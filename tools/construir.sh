# Configuring and building for run.sh and test.sh; to be sourced in the project's folder. Each prints
# one line when it fails and leaves the details in build/log.

con_registros() {  # whether there is a place for what the tools say
    mkdir -p build/log 2>/dev/null && [ -w build/log ] && return
    echo "Corvanda: $PWD/build cannot be written" >&2
    return 1
}

configurado() {  # configurado PRESET TARGETS: whether this tree's build is ready to make these
    local dir=build/$1 programa
    shift
    [ -f "$dir/build.ninja" ] && [ ! CMakePresets.json -nt "$dir/build.ninja" ] || return 1
    grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$dir/CMakeCache.txt" || return 1
    for programa; do
        grep -q "^build $programa:" "$dir/build.ninja" || return 1
    done
}

configurar() {  # configurar PRESET [CMAKE ARGUMENTS]
    local preset=$1 cache=build/$1/CMakeCache.txt nueva=()
    shift
    # A tree that was moved or copied cannot be configured over its old cache.
    [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache" && nueva=(--fresh)
    con_registros || return 1
    cmake --preset "$preset" "${nueva[@]}" "$@" >"build/log/configurar-$preset.log" 2>&1 </dev/null && return
    echo "Corvanda: could not configure the build: see build/log/configurar-$preset.log" >&2
    return 1
}

compilar() {  # compilar PRESET [TARGETS]
    local preset=$1 registro=build/log/compilar-$1.log
    con_registros || return 1
    shift
    cmake --build --preset "$preset" ${1+--target "$@"} >"$registro" 2>&1 </dev/null && return
    grep -m 3 -E ': (fatal )?error:|undefined reference|No space left' "$registro" >&2
    echo "Corvanda: could not build: see $registro" >&2
    return 1
}
