#!/usr/bin/env bash
# Developer entry point on Debian 12, run as root from anywhere:
#   scripts/dev.sh gallery   install what is missing, build, run the gallery
#                            (without a display: write its screenshots instead)
#   scripts/dev.sh test      install what is missing, build and run every test,
#                            then again built by clang with ASan/UBSan/LSan
#   scripts/dev.sh bench     build and run the benchmarks
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$here"
jobs=$(nproc 2>/dev/null || echo 2)

packages=(cmake ninja-build g++ pkg-config clang-format
          qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-declarative-dev
          qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools designer-qt6 libgl-dev
          clang libclang-rt-14-dev lld ccache
          fontconfig fonts-dejavu-core xauth xvfb
          dbus at-spi2-core python3-pyatspi
          qml6-module-qtquick qml6-module-qtqml-workerscript qml6-module-qtqml-models qml-qt6)

install_missing() {
    local missing=()
    for p in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
    done
    if ((${#missing[@]})); then
        echo "== installing: ${missing[*]}"
        export DEBIAN_FRONTEND=noninteractive
        apt-get update -q
        apt-get install -y -q --no-install-recommends "${missing[@]}"
    fi
}

build() { # build DIR [cmake options...]; later options override the default build type
    local dir=$1
    shift
    local options=()
    if command -v ccache >/dev/null; then
        options=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
        # Fresh clones in other folders still hit the cache, Debug builds too.
        export CCACHE_BASEDIR="$here" CCACHE_NOHASHDIR=true
        # The tests share precompiled headers; these let ccache cache them.
        export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        # Hash the compiler's own dependency list instead of running the
        # preprocessor first: a third less work per file when the cache misses.
        export CCACHE_DEPEND=true
    fi
    # lld links the hundred-odd test programs in a fraction of ld's time.
    if command -v ld.lld >/dev/null; then
        options+=(-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld -DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=lld
                   -DCMAKE_MODULE_LINKER_FLAGS=-fuse-ld=lld)
    fi
    # Warnings fail the build, with GCC and with clang alike.
    cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKARVEX_WERROR=ON "${options[@]}" "$@"
    cmake --build "$dir" -j "$jobs"
}

run_tests() { # run_tests DIR
    QT_QPA_PLATFORM=offscreen ctest --test-dir "$1" --output-on-failure -j "$jobs"
}

case "${1:-}" in
gallery)
    install_missing
    build build -DKARVEX_BUILD_TESTS=OFF
    if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
        exec build/examples/gallery/karvex-gallery
    fi
    out="$here/build/gallery-screenshots"
    echo "== no display: writing the gallery's screenshots to $out"
    QT_QPA_PLATFORM=offscreen build/examples/gallery/karvex-gallery --screenshot "$out"
    ;;
test)
    install_missing
    # GCC builds everything but the test programs, warning-free, and runs the
    # tests that drive the gallery (the AT-SPI walk), Designer with the
    # plugin, qmllint and the theme tools. Its own folder, at -O1: two thirds
    # of the compile time of -O3, GCC's flow-based warnings still on.
    build build-test -DCMAKE_CXX_FLAGS_RELEASE="-O1 -DNDEBUG" -DKARVEX_BUILD_UNIT_TESTS=OFF
    run_tests build-test
    echo "== every test program, built by clang with AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer"
    # Building the hundred-odd test programs twice would take CI past its
    # time, so they run once, in the strictest build. Unoptimised: compiles
    # fastest, and the sanitizers see more.
    # Line tables only: the sanitizers' reports keep file and line, the
    # compile and link skip full debug information.
    build build-sanitize-clang -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug -DKARVEX_SANITIZE=ON \
        -DCMAKE_CXX_FLAGS_DEBUG=-g1 \
        -DKARVEX_BUILD_GALLERY=OFF -DKARVEX_BUILD_BENCH=OFF
    run_tests build-sanitize-clang
    ;;
bench)
    install_missing
    build build
    QT_QPA_PLATFORM=offscreen build/bench/bench_themeswitch
    QT_QPA_PLATFORM=offscreen build/bench/bench_buttons
    QT_QPA_PLATFORM=offscreen build/bench/bench_labels
    QT_QPA_PLATFORM=offscreen build/bench/bench_avatars
    QT_QPA_PLATFORM=offscreen build/bench/bench_combobox
    QT_QPA_PLATFORM=offscreen build/bench/bench_menus
    ;;
*)
    echo "usage: $0 gallery|test|bench" >&2
    exit 2
    ;;
esac
