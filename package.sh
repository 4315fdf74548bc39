#!/usr/bin/env bash
# Makes packages of Lumivex in build/packages: a Debian package, and of it an archive that brings the libraries along, for
# other systems whose C library is at least as new as this one's. What is made twice of the same sources is the same bytes.
#   ./package.sh          both
#   ./package.sh deb      the Debian package alone
set -euo pipefail
cd "$(dirname "$0")"
. cmake/setup.sh
lumivex_setup
lumivex_install debhelper dpkg-dev fakeroot

out=$PWD/build/packages
mkdir -p "$out"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
version=$(sed -n '1s/.*(\(.*\)).*/\1/p' debian/changelog)
SOURCE_DATE_EPOCH=$(date -d "$(sed -n 's/^ -- .*>  //p' debian/changelog | head -1)" +%s)
export SOURCE_DATE_EPOCH

echo "== deb"
source=$work/lumivex-$version
mkdir "$source"
git ls-files -z | xargs -0 cp --parents -P -t "$source"
(cd "$source" && dpkg-buildpackage --build=binary --no-sign >"$out/build.log" 2>&1) || { tail -40 "$out/build.log"; exit 1; }
rm -f "$out"/*.deb
cp "$work"/*.deb "$out"
[ "${1:-all}" = deb ] && exit

echo "== archive"
name=lumivex-$version-$(uname -m)
tree=$work/$name
dpkg-deb -x "$out"/lumivex_"$version"_*.deb "$work/deb"
mkdir -p "$tree"/{lib,plugins}
cp -r "$work/deb/usr/bin" "$work/deb/usr/share" "$tree"
plugins=$(qtpaths6 --plugin-dir 2>/dev/null || echo "/usr/lib/$(uname -m)-linux-gnu/qt6/plugins")
for kind in platforms imageformats iconengines xcbglintegrations wayland-shell-integration; do
  [ ! -d "$plugins/$kind" ] || cp -r "$plugins/$kind" "$tree/plugins"
done
# Of the system stay: the C library, what belongs to a display's driver, and the fonts' settings.
stays='^(ld-linux|libc|libm|libdl|librt|libpthread|libresolv|libnss|libGL|libEGL|libGLX|libGLdispatch|libOpenGL|libdrm|libgbm|libX11|libX11-xcb|libwayland-client|libfontconfig|libfreetype|libstdc\+\+|libgcc_s)[-.]|^libxcb\.so'
find "$tree/bin" "$tree/plugins" -type f -exec ldd {} + 2>/dev/null | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u |
  while read -r library; do
    basename "$library" | grep -qE "$stays" || cp -L "$library" "$tree/lib"
  done
for program in lumivex lumivex-run; do
  cat >"$tree/$program" <<SCRIPT
#!/bin/sh
here=\$(dirname "\$(readlink -f "\$0")")
export LD_LIBRARY_PATH="\$here/lib\${LD_LIBRARY_PATH:+:\$LD_LIBRARY_PATH}" QT_PLUGIN_PATH="\$here/plugins"
exec "\$here/bin/$program" "\$@"
SCRIPT
  chmod 755 "$tree/$program"
done
tar -C "$work" --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner --mode=go=rX,u+rw -c "$name" |
  gzip -9n >"$out/$name.tar.gz"
ls -l "$out"/*.deb "$out"/*.tar.gz
