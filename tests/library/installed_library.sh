#!/usr/bin/env bash
# Installs libkelvo into a clean tree and builds the example programs against it, by CMake and by
# pkg-config, in C and in C++; what they print is what it should be.
#
#   installed_library.sh BUILD SOURCE [CXX]
set -euo pipefail
build=$1 source=$2 cxx=${3:-c++} cc=cc
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for component in library development; do
    DESTDIR=$work/root cmake --install "$build" --prefix /usr --component $component >"$work/log" 2>&1 ||
        { cat "$work/log"; exit 1; }
done
folder=$(dirname "$(find "$work/root" -name 'libkelvo.so.1')")
export LD_LIBRARY_PATH=$folder

check() {
    local one many bad
    one=$("$1/one_point") many=$("$1/many_points") bad=$("$1/bad_input")
    # The point of both programs is the same one.
    [[ $one =~ ^[0-9]+\.[0-9]{6}\ [0-9]+\.[0-9]{6}\ [0-9]+\.[0-9]{4}$ ]] || { echo "one_point: $one"; exit 1; }
    [ "$one" = "$many" ] || { echo "one_point: $one, many_points: $many"; exit 1; }
    [ "$(wc -l <<<"$bad")" = 2 ] && [[ $bad == "parameters line 2: "* ]] || { echo "bad_input: $bad"; exit 1; }
}

echo "== find_package"
# What a test of the suite runs under needn't be what the examples are built with.
cmake -S "$source/examples/library" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/root/usr" \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" >"$work/log" 2>&1 &&
    cmake --build "$work/cmake" >>"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
check "$work/cmake"

echo "== pkg-config"
if ! command -v pkg-config >/dev/null; then
    echo "skipped: no pkg-config"
    exit 0
fi
export PKG_CONFIG_PATH=$folder/pkgconfig
mkdir "$work/pc"
# shellcheck disable=SC2046  # several words on purpose
{
    "$cc" -std=c99 -pedantic -Wall -Werror "$source/examples/library/one_point.c" -o "$work/pc/one_point" \
        $(pkg-config --cflags --libs kelvo)
    for program in many_points bad_input; do
        "$cxx" -std=c++20 -Wall -Wextra -Werror -pthread "$source/examples/library/$program.cpp" -o "$work/pc/$program" \
            $(pkg-config --cflags --libs kelvo)
    done
}
check "$work/pc"

echo "== interface"
shown=$(nm -D --defined-only "$folder/libkelvo.so.1" | awk '$2 ~ /[TDBRVW]/ { print $3 }' | grep -v '^kelvo_' || true)
[ -z "$shown" ] || { echo "symbols that nobody should see: $shown"; exit 1; }
readelf -d "$folder/libkelvo.so.1" | grep -q 'SONAME.*\[libkelvo\.so\.1\]'
