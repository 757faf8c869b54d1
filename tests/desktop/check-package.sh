#!/usr/bin/env bash
# Builds the Debian package with CPack into a temporary folder, unpacks it with dpkg -x and
# checks what it holds: the program, the desktop entry (desktop-file-validate) and the
# file-manager actions with their command lines, the MIME type, the AppStream metainfo
# (appstreamcli validate), the manual page and the dependencies on the Qt 6 libraries and on
# xdg-utils (xdg-open opens files).
# Usage: check-package.sh <cpack> <build folder> <version>.
# Exit 77: a needed tool is missing (skipped; scripts/deps.sh installs them all).
set -uo pipefail
cpack="$1"
build="$2"
version="$3"

missing=()
for tool in dpkg-deb dpkg-shlibdeps file desktop-file-validate appstreamcli gzip; do
    command -v "$tool" >/dev/null 2>&1 || missing+=("$tool")
done
if [ ${#missing[@]} -ne 0 ]; then
    echo "SKIPPED: missing ${missing[*]} (Debian packages dpkg-dev, file," \
         "desktop-file-utils, appstream, gzip; scripts/deps.sh installs them)."
    exit 77
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
failures=0
fail() { echo "FAILED: $*"; failures=$((failures + 1)); }

arch="$(dpkg --print-architecture)"
if ! (cd "$build" && env -u DESTDIR "$cpack" -G DEB --config "$build/CPackConfig.cmake" \
        -B "$work/out" >"$work/cpack.log" 2>&1); then
    cat "$work/cpack.log"
    echo "FAILED: cpack -G DEB"
    exit 1
fi
deb="$work/out/quovara_${version}_${arch}.deb"
if [ ! -s "$deb" ]; then
    echo "FAILED: no $(basename "$deb"); cpack made: $(cd "$work/out" && ls *.deb 2>/dev/null)"
    exit 1
fi
echo "Package: $(basename "$deb")"

# The control file.
info="$(dpkg-deb -I "$deb")"
field() { printf '%s\n' "$info" | sed -n "s/^ $1: //p"; }
[ "$(field Package)" = quovara ] || fail "Package: $(field Package)"
[ "$(field Version)" = "$version" ] || fail "Version: $(field Version)"
[ "$(field Architecture)" = "$arch" ] || fail "Architecture: $(field Architecture)"
[ "$(field Section)" = utils ] || fail "Section: $(field Section)"
[ -n "$(field Maintainer)" ] || fail "no Maintainer"
# Each check reads a here-string, not a pipe: with pipefail, "grep -q" leaving early could
# end the writer with SIGPIPE and fail a check that matched.
grep -q 'archive manager for UHARC archives' <<<"$(field Description)" || fail "Description"
grep -qx '  quovara --install-engine puts it in place.' <<<"$info" ||
    fail "the long description: $(printf '%s\n' "$info" | sed -n '/Description:/,/^ [A-Z]/p')"
depends="$(field Depends)"
echo "Depends: $depends"
for lib in libqt6core6 libqt6gui6 libqt6widgets6 libqt6dbus6 libc6 libstdc++6 xdg-utils libarchive13 qt6-translations-l10n; do
    grep -q "^ *$lib\b" <<<"${depends//,/$'\n'}" || fail "Depends lacks $lib"
done

# The contents.
root="$work/root"
dpkg-deb -x "$deb" "$root" || { echo "FAILED: dpkg -x"; exit 1; }
share="$root/usr/share"
[ -x "$root/usr/bin/quovara" ] || fail "usr/bin/quovara is missing or not executable"
grep -q '^ELF' <<<"$(file -b "$root/usr/bin/quovara")" || fail "usr/bin/quovara is not an ELF program"
for f in applications/quovara.desktop mime/packages/quovara.xml \
         metainfo/org.example.Quovara.metainfo.xml man/man1/quovara.1.gz \
         icons/hicolor/scalable/apps/quovara.svg icons/hicolor/48x48/apps/quovara.png \
         icons/hicolor/scalable/mimetypes/application-x-uharc.svg \
         kio/servicemenus/quovara.desktop kio/servicemenus/quovara-add.desktop \
         nemo/actions/quovara-extract.nemo_action nemo/actions/quovara-add.nemo_action \
         nemo/actions/quovara-sfx.nemo_action file-manager/actions/quovara-extract.desktop \
         nemo/actions/quovara-extract-here.nemo_action \
         file-manager/actions/quovara-extract-here.desktop \
         nemo/actions/quovara-convert-zip.nemo_action nemo/actions/quovara-convert-7z.nemo_action \
         file-manager/actions/quovara-convert-zip.desktop \
         file-manager/actions/quovara-convert-7z.desktop \
         file-manager/actions/quovara-add.desktop file-manager/actions/quovara-sfx.desktop; do
    [ -s "$share/$f" ] || fail "missing usr/share/$f"
done
# Nothing outside /usr, and no trace of the folders the package was built in.
outside="$(cd "$root" && find . -mindepth 1 -maxdepth 1 ! -name usr)"
[ -z "$outside" ] || fail "files outside /usr: $outside"
if grep -rlI -e "$build" -e "_CPack_Packages" "$root" >/dev/null 2>&1; then
    fail "build paths in: $(grep -rlI -e "$build" -e _CPack_Packages "$root" | tr '\n' ' ')"
fi

# The desktop entry: valid, the installed program in every Exec line, the MIME type.
desktop="$share/applications/quovara.desktop"
if ! out="$(desktop-file-validate "$desktop" 2>&1)" || [ -n "$out" ]; then
    fail "desktop-file-validate: $out"
fi
expect_line() { grep -qxF -- "$2" "$1" || fail "$(basename "$1"): no line '$2'"; }
expect_line "$desktop" 'Exec=/usr/bin/quovara %f'
expect_line "$desktop" 'Exec=/usr/bin/quovara "extract " %f'
expect_line "$desktop" 'Exec=/usr/bin/quovara "add " %f'
expect_line "$desktop" 'Exec=/usr/bin/quovara "sfx " %f'
expect_line "$desktop" 'MimeType=application/x-uharc;'
expect_line "$desktop" 'Exec=/usr/bin/quovara --extract-here %F'
expect_line "$desktop" 'Exec=/usr/bin/quovara --convert zip %F'
expect_line "$desktop" 'Exec=/usr/bin/quovara --convert 7z %F'
expect_line "$desktop" 'Name=Convert to ZIP'
expect_line "$desktop" 'Name=Convert to 7z'
expect_line "$desktop" 'Actions=extract;extracthere;convertzip;convert7z;add;sfx;'
grep -q 'glob pattern="\*\.uha"' "$share/mime/packages/quovara.xml" || fail "MIME glob *.uha"
grep -q 'type="application/x-uharc"' "$share/mime/packages/quovara.xml" || fail "MIME type"

# The file managers' actions.
kde="$share/kio/servicemenus/quovara.desktop"
[ -x "$kde" ] || fail "the KDE service menu is not executable"
expect_line "$kde" 'MimeType=application/x-uharc;'
expect_line "$kde" 'X-KDE-ServiceTypes=KonqPopupMenu/Plugin'
expect_line "$kde" 'Exec=/usr/bin/quovara "extract " %f'
expect_line "$kde" 'Exec=/usr/bin/quovara "sfx " %f'
expect_line "$kde" 'Exec=/usr/bin/quovara --extract-here %F'
expect_line "$kde" 'Exec=/usr/bin/quovara --convert zip %F'
expect_line "$kde" 'Exec=/usr/bin/quovara --convert 7z %F'
expect_line "$kde" 'Actions=extract;extracthere;convertzip;convert7z;sfx;'
expect_line "$share/kio/servicemenus/quovara-add.desktop" 'MimeType=all/all;'
expect_line "$share/kio/servicemenus/quovara-add.desktop" 'Exec=/usr/bin/quovara "add " %f'
for word in extract add sfx; do
    expect_line "$share/nemo/actions/quovara-$word.nemo_action" "Exec=/usr/bin/quovara \"$word \" %F"
    expect_line "$share/file-manager/actions/quovara-$word.desktop" "Exec=/usr/bin/quovara \"$word \" %f"
done
# Extract Here takes every archive selected.
expect_line "$share/nemo/actions/quovara-extract-here.nemo_action" 'Exec=/usr/bin/quovara --extract-here %F'
expect_line "$share/nemo/actions/quovara-extract-here.nemo_action" 'Selection=notnone'
expect_line "$share/file-manager/actions/quovara-extract-here.desktop" 'Exec=/usr/bin/quovara --extract-here %F'
expect_line "$share/file-manager/actions/quovara-extract-here.desktop" 'SelectionCount=>0'
# So do the conversions to ZIP and 7z.
for format in zip 7z; do
    caption="Convert to ${format/zip/ZIP} with Quovara"
    nemo="$share/nemo/actions/quovara-convert-$format.nemo_action"
    caja="$share/file-manager/actions/quovara-convert-$format.desktop"
    expect_line "$kde" "Name=$caption"
    expect_line "$nemo" "Name=$caption"
    expect_line "$nemo" "Exec=/usr/bin/quovara --convert $format %F"
    expect_line "$nemo" 'Selection=notnone'
    expect_line "$nemo" 'Mimetypes=application/x-uharc;'
    expect_line "$caja" "Name=$caption"
    expect_line "$caja" "Exec=/usr/bin/quovara --convert $format %F"
    expect_line "$caja" 'SelectionCount=>0'
    expect_line "$caja" 'MimeTypes=application/x-uharc;'
done

# The AppStream metainfo: valid, with its id and the desktop entry it launches.
metainfo="$share/metainfo/org.example.Quovara.metainfo.xml"
if ! out="$(appstreamcli validate --no-net "$metainfo" 2>&1)"; then
    fail "appstreamcli validate: $out"
fi
grep -q '<id>org.example.Quovara</id>' "$metainfo" || fail "metainfo id"
grep -q '<launchable type="desktop-id">quovara.desktop</launchable>' "$metainfo" ||
    fail "metainfo launchable"
grep -q 'Convert archives to ZIP, 7z, tar.xz or tar.zst' "$metainfo" ||
    fail "the metainfo does not mention the conversions"
# In twelve languages: the summary, and the desktop entry's texts.
for lang in cs de es fr it ja pl pt_BR ru tr uk zh_CN; do
    grep -q "<summary xml:lang=\"$lang\">" "$metainfo" || fail "no $lang summary in the metainfo"
    grep -q "^Comment\[$lang\]=" "$desktop" || fail "no $lang comment in the desktop entry"
done
expect_line "$desktop" 'Name[de]=Hier entpacken'
expect_line "$kde" 'Name[fr]=Extraire ici avec Quovara'

# The manual page: section 1, the command line, the installer and the environment.
man="$(gzip -dc "$share/man/man1/quovara.1.gz")" || fail "the manual page is not gzip data"
grep -q '^\.TH QUOVARA 1 ' <<<"$man" || fail "manual page title"
for text in 'install\\-engine' 'extract  ' 'QUOVARA_PROGRAM_DIR' 'QUOVARA_WINE' \
            'wine32' '\.local/share/quovara'; do
    grep -q -- "$text" <<<"$man" || fail "the manual page does not mention $text"
done

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "The package holds the program and its desktop files, and depends on the Qt 6 libraries."
