# Sourced by run.sh and test.sh: installs what packages.txt names and this machine lacks (Debian).
lumivex_setup() {
  local missing=() package
  while read -r package; do
    [ -z "$package" ] && continue
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done < <(sed 's/#.*//; s/[[:space:]]*$//' packages.txt)
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
