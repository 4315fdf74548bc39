# Sourced by run.sh, test.sh and package.sh: installs Debian packages that this machine lacks.
lumivex_install() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}" >&2
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing and need root to install: ${missing[*]}" >&2; return 1; }
    root=(sudo)
  fi
  "${root[@]}" apt-get update -qq >&2 || true
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# What packages.txt names.
lumivex_setup() {
  local packages
  mapfile -t packages < <(sed 's/#.*//; s/[[:space:]]//g; /^$/d' packages.txt)
  lumivex_install "${packages[@]}"
}
