#!/usr/bin/env bash
# Includes and links go downwards only: fails with one line for each that does not.
#
#     tests/capas_test.sh [FOLDER OF THE SOURCES]
set -u
cd "${1:-$(dirname "$0")/..}" || exit 1
[ -f CMakeLists.txt ] || exit 1

# What each layer may include and link of ours; and, of others, what it may name.
declare -A propias=(
    [runtime]="runtime"
    [core]="core runtime"
    [computer]="computer core runtime"
    [desktop]="desktop runtime"
    [ui]="ui core runtime"
    [app]="app ui desktop computer core runtime"
    [demostracion]="demostracion app ui desktop computer core runtime"
    [bench]="bench demostracion app ui desktop computer core runtime"
)
declare -A ajenas=(
    [desktop]="qt sdl sistema" [ui]="qt" [app]="qt sistema" [demostracion]="qt sistema"
    [bench]="qt sistema"
)

faltas=0
falta() {
    echo "$1"
    faltas=$((faltas + 1))
}

puede() {  # puede LIST WORD
    [[ " $1 " == *" $2 "* ]]
}

de_quien() {  # de_quien HEADER: standard headers of C++ have neither a folder nor an ending
    case $1 in
        Q[A-Z]* | Qt*/* | q*.h) echo qt ;;
        SDL*) echo sdl ;;
        */* | *.*) echo sistema ;;
        *) echo std ;;
    esac
}

mirar_inclusion() {  # mirar_inclusion LEVEL PLACE INCLUDED
    local capa=$1 sitio=$2 que=${3:1:-1}
    if [[ $3 == '<'* ]]; then
        local quien
        quien=$(de_quien "$que")
        [ "$quien" = std ] || puede "${ajenas[$capa]-}" "$quien" || falta "$sitio: $capa/ must not include <$que>"
    elif [[ $que == */* ]]; then
        puede "${propias[$capa]}" "${que%%/*}" || falta "$sitio: $capa/ must not include \"$que\""
    else  # what Qt's tools write has no folder
        [[ $que =~ ^(moc_.*\.cpp|.*\.moc|ui_.*\.h|qrc_.*\.cpp)$ ]] && puede "${ajenas[$capa]-}" qt ||
            falta "$sitio: write the folder of \"$que\""
    fi
}

# What cannot be read, such as a macro after #include, could hide anything and is refused.
vistos=0
for capa in "${!propias[@]}"; do
    [ -d "$capa" ] || continue
    while IFS=: read -r archivo linea texto; do
        vistos=$((vistos + 1))
        if [[ $texto =~ ^[[:space:]]*#[[:space:]]*include[[:space:]]*(\"[^\"]+\"|<[^>]+>) ]]; then
            mirar_inclusion "$capa" "$archivo:$linea" "${BASH_REMATCH[1]}"
        else
            falta "$archivo:$linea: not a plain include: $texto"
        fi
    done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include' --include='*.h' --include='*.cpp' "$capa")
done
[ $vistos -gt 0 ] || falta "no include found in $PWD"

# Links: the same rule for what CMake is told, wherever it is told. A target is of the layer in whose
# folder it is made.
llamadas() {  # llamadas FUNCTION: FILE ARGUMENTS, a line for each call
    local archivo
    for archivo in CMakeLists.txt */CMakeLists.txt; do
        sed 's/#.*//' "$archivo" | tr '\n' ' ' | grep -oE "\b$1 *\([^)]*\)" |
            sed -E "s/^[^(]*\( */${archivo//\//\\/} /; s/\)$//"
    done
}

declare -A nivel=()
while read -r archivo objetivo _; do
    [ -n "${propias[${archivo%%/*}]-}" ] && nivel[$objetivo]=${archivo%%/*}
done < <(llamadas '(add_library|add_executable)')
while read -r archivo objetivo bibliotecas; do
    capa=${nivel[$objetivo]-}
    [ -n "$capa" ] || continue
    for biblioteca in $bibliotecas; do
        case $biblioteca in
            PUBLIC | PRIVATE | INTERFACE | corvanda_flags) continue ;;
            Qt6::*) puede "${ajenas[$capa]-}" qt && continue ;;
            SDL2::*) puede "${ajenas[$capa]-}" sdl && continue ;;
            *::*) puede "${ajenas[$capa]-}" sistema && continue ;;
            *) puede "${propias[$capa]}" "${nivel[$biblioteca]-?}" && continue ;;
        esac
        falta "$archivo: $objetivo must not link $biblioteca"
    done
done < <(llamadas target_link_libraries)

[ $faltas -eq 0 ] || exit 1
echo "every include and link goes downwards"
