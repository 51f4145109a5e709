# What ./run and ./check share. Sourced from the project's root.

set -euo pipefail

say() { printf '== %s\n' "$*"; }

# Installs the packages that are missing, on Debian and systems derived from it. Elsewhere it names them and fails.
ensure_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

build_packages=(cmake ninja-build g++ g++-mingw-w64-x86-64 googletest fp-utils python3)
wine_packages=(wine wine64 fonts-liberation fonts-wine)
display_packages=(xvfb imagemagick)
fuzz_packages=(cmake ninja-build g++ clang libclang-rt-14-dev)
installer_packages=(nsis)

# Builds the targets of a preset, all of them when none is named.
build() {
    local preset=$1
    shift
    say "Building $preset"
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"build/$preset.configure.log" || {
        cat "build/$preset.configure.log"
        return 1
    }
    cmake --build --preset "$preset" ${*:+--target "$@"} -- --quiet
}

# Makes the Wine prefix of which all others are copies, since it takes Wine half a minute, and sets what they have in
# common. Wine does not offer to download anything.
make_wine_prefix() {
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
    export WINEARCH=win64
    # Wine can give files only the names that the locale's characters allow.
    case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in
        *[Uu][Tt][Ff]*) ;;
        *)
            unset LC_ALL
            export LC_CTYPE=C.UTF-8
            ;;
    esac
    export WINEPREFIX=$PWD/build/wine-new
    [ ! -f "$WINEPREFIX/system.reg" ] || return 0
    say "Making a Wine prefix"
    mkdir -p "$WINEPREFIX"
    wineboot --init >build/wine-new.log 2>&1 || {
        cat build/wine-new.log
        say "Wine could not make its prefix"
        return 1
    }
    wineserver -w
}

# Sets up the project's own Wine prefix of this name, so that the user's settings are left alone.
use_own_wine() {
    make_wine_prefix
    export WINEPREFIX=$PWD/build/wine-$1
    [ -f "$WINEPREFIX/system.reg" ] || cp -r build/wine-new "$WINEPREFIX"
    # The signs on the buttons of title bars. Debian's Wine does not look into the folder of its own fonts and would
    # show the letters 0, 1 and r.
    local signs=/usr/share/wine/fonts/marlett.ttf
    mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
    [ ! -f "$signs" ] || ln -sf "$signs" "$WINEPREFIX/drive_c/windows/Fonts/"
}

# Starts a virtual display of its own and points DISPLAY at it.
start_virtual_display() {
    local size=$1 number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "$size" -nolisten tcp >/dev/null 2>&1 3>"$number_file" &
    display_process=$!
    local tries=0
    until [ -s "$number_file" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 100 ] || ! kill -0 "$display_process" 2>/dev/null; then
            say "The virtual display did not start"
            return 1
        fi
        sleep 0.1
    done
    export DISPLAY=:$(cat "$number_file")
    rm -f "$number_file"
}

# Sets up the Wine prefix of this name for programs that test windows. Its desktop is open on the display of DISPLAY,
# and its sound device writes what is played to the file of TORVANIX_SOUND_CAPTURE. The caller ends it with wineserver
# -k.
open_test_desktop() {
    use_own_wine "$1"
    # The desktop stays open between the programs. It opens while the rest is set up, since a program that started at
    # the same time could get another desktop.
    wine explorer.exe /desktop=tests,1600x1000 >/dev/null 2>&1 &
    # Every window of this prefix opens on one desktop with real title bars.
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d tests /f >/dev/null
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v tests /d 1600x1000 /f >/dev/null

    wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null

    # This configuration makes a sound device that writes what is played to a file.
    export ALSA_CONFIG_PATH=$PWD/build/asound-$1.conf
    local capture=$PWD/build/sound-$1.raw
    rm -f "$capture"
    cat >"$ALSA_CONFIG_PATH" <<EOF
</usr/share/alsa/alsa.conf>
pcm.!default { type file slave.pcm "null" file "$capture" format "raw" }
ctl.!default { type hw card 0 }
EOF
    wine reg add 'HKCU\Software\Wine\Drivers' /v Audio /d alsa /f >/dev/null
    export TORVANIX_SOUND_CAPTURE="Z:${capture//\//\\}"
}
