#!/usr/bin/env bash
# Checks a Keldor Debian package against the build it was made from:
#   scripts/check-package.sh PACKAGE.deb BUILD_DIR
# It unpacks the package into a scratch root and checks that every file lies
# under /usr, that nothing names the build tree, that the version agrees, that
# its keldor-headless writes the same world as the build tree's, that the
# desktop entry, AppStream metadata and manual pages are sound, and that
# lintian finds no error.
set -euo pipefail
deb=$(realpath "$1")
build=$(realpath "$2")
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "check-package: $*" >&2; exit 1; }

dpkg -x "$deb" "$root"

outside=$(dpkg -c "$deb" | awk '{print $6}' | grep -v -e '^\./usr/' -e '^\./$' || true)
[ -z "$outside" ] || fail "installs files outside /usr: $outside"
for tool in keldor keldor-headless keldor-sweep keldor-screenshot; do
  [ -x "$root/usr/bin/$tool" ] || fail "no /usr/bin/$tool"
done
named=$(grep -rlF "$build" "$root" || true)
[ -z "$named" ] || fail "names the build tree: $named"

version=$(dpkg-deb -f "$deb" Version)
[ "$(basename "$deb")" = "keldor_${version}_$(dpkg-deb -f "$deb" Architecture).deb" ] || fail "file name does not match $version"
[ "$(env -u DISPLAY "$root/usr/bin/keldor" --version)" = "keldor $version" ] || fail "keldor --version is not $version"
zcat "$root/usr/share/doc/keldor/changelog.gz" | head -1 | grep -qF "keldor ($version)" || fail "changelog is not at $version"
grep -qF "<release version=\"$version\"" "$root"/usr/share/metainfo/*.metainfo.xml || fail "AppStream release is not $version"

export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$root"
"$build/bin/keldor-headless" --seed 1 --ticks 10 --json "$root/built.json" >/dev/null
"$root/usr/bin/keldor-headless" --seed 1 --ticks 10 --json "$root/packaged.json" >/dev/null
cmp "$root/built.json" "$root/packaged.json" || fail "the packaged keldor-headless writes another world"

out=$(desktop-file-validate "$root"/usr/share/applications/*.desktop 2>&1) && [ -z "$out" ] || fail "desktop entry: $out"
out=$(appstreamcli validate --no-net --pedantic "$root"/usr/share/metainfo/*.metainfo.xml 2>&1) || fail "AppStream: $out"
for page in keldor keldor-headless keldor-sweep keldor-screenshot; do
  out=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$root/usr/share/man/man1/$page.1.gz" 2>&1 >/dev/null)
  [ -z "$out" ] || fail "manual page $page: $out"
done
out=$(lintian --fail-on error "$deb" 2>&1) || fail "lintian: $out"
echo "check-package: $(basename "$deb") is sound"
