# What run, test and the tools share: installing the packages that are missing, and building.
# Sourced by bash. Nothing here changes the caller's folder or writes to stdout.
# shellcheck shell=bash
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=2

say() { printf '%s\n' "$*" >&2; }
die() { say "$(basename "$0"): $*"; exit 1; }

# The entries of the named lists, without comments.
listed() {
  local list
  for list; do sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$root/packages/$list.txt"; done
}

# Those of them that are not installed. "name=version" asks for that version exactly.
missing() {
  local entry name version
  declare -A installed=()
  while read -r name version; do installed[$name]=$version; done < <(
    dpkg-query --show --showformat='${db:Status-Status} ${Package} ${Version}\n' |
      sed -n 's/^installed //p')
  listed "$@" | sort -u | while read -r entry; do
    name=${entry%%=*}
    if [[ -z ${installed[$name]:-} ]]; then printf '%s\n' "$entry"
    elif [[ $entry == *=* && ${installed[$name]} != "${entry#*=}" ]]; then printf '%s\n' "$entry"
    fi
  done
}

# Installs what the named lists hold and the machine lacks; touches neither apt nor the network
# when that is nothing.
need() {
  local log="$root/build/apt.log" as_root=() wanted
  if ! command -v dpkg-query >/dev/null; then
    say "This is not a Debian system; it has to have the counterparts of packages/*.txt already."
    return
  fi
  mapfile -t wanted < <(missing "$@")
  if [[ ${#wanted[@]} == 0 ]]; then return; fi

  if [[ $(id -u) != 0 ]]; then
    as_root=(sudo)
    if [[ ! -t 0 ]]; then as_root=(sudo -n); fi # nobody there to type a password
    if ! command -v sudo >/dev/null || ! "${as_root[@]}" true; then
      say "These packages are missing, and installing them takes root or sudo:"
      say "  ${wanted[*]}"
      say "As root: apt-get install --no-install-recommends ${wanted[*]}"
      exit 1
    fi
  fi

  say "Installing from Debian: ${wanted[*]}"
  mkdir -p "$root/build"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
  if ! { "${apt[@]}" update &&
    "${apt[@]}" install --yes --no-install-recommends "${wanted[@]}"; } >"$log" 2>&1 </dev/null; then
    tail -n 20 "$log" >&2
    # shellcheck disable=SC1091
    die "apt failed on $(. /etc/os-release && echo "$PRETTY_NAME"); the packages are Debian 12's. Whole log: $log"
  fi
}

# configure PRESET [-DVARIABLE=VALUE...]: once; ninja configures anew when a CMakeLists.txt changes.
configure() {
  local preset=$1 log
  shift
  if [[ -f $root/build/$preset/build.ninja ]]; then return; fi
  say "Configuring build/$preset"
  mkdir -p "$root/build"
  log="$root/build/$preset.configure.log"
  if ! (cd "$root" && cmake --preset "$preset" "$@") >"$log" 2>&1; then
    cat "$log" >&2
    die "CMake could not configure build/$preset"
  fi
}

# build PRESET TARGET: silent when there is nothing to do, else on stderr.
build() {
  local folder=$root/build/$1
  if ninja -C "$folder" -n "$2" 2>/dev/null | grep -q 'no work to do'; then return; fi
  say "Building $2 in build/$1"
  ninja -C "$folder" -j "$jobs" "$2" >&2 || die "the build in build/$1 failed"
}
