#!/usr/bin/env bash
# Installs Quovara into a temporary prefix and checks the desktop integration: the program,
# the desktop entry (accepted by desktop-file-validate) with its actions, the file managers'
# actions (in twelve languages), the MIME package for ".uha" files with its glob and "UHA"
# signature, the file association and the icons.
# Usage: check-install.sh <cmake> <build folder>. Exit 77: a needed tool is missing (skipped).
set -uo pipefail
cmake="$1"
build="$2"

for tool in desktop-file-validate update-mime-database; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "SKIPPED: $tool is not installed (Debian packages desktop-file-utils and" \
             "shared-mime-info; scripts/deps.sh installs them)."
        exit 77
    fi
done

prefix="$(mktemp -d)"
trap 'rm -rf "$prefix"' EXIT
failures=0
fail() { echo "FAILED: $*"; failures=$((failures + 1)); }

if ! env -u DESTDIR "$cmake" --install "$build" --prefix "$prefix"; then
    echo "FAILED: cmake --install (is the program built?)"
    exit 1
fi

share="$prefix/share"
[ -x "$prefix/bin/quovara" ] || fail "the program is not installed as bin/quovara"
for f in applications/quovara.desktop \
         mime/packages/quovara.xml \
         icons/hicolor/scalable/apps/quovara.svg \
         icons/hicolor/scalable/mimetypes/application-x-uharc.svg; do
    [ -s "$share/$f" ] || fail "missing share/$f"
done
for size in 16 24 32 48 64 128 256; do
    for f in "apps/quovara.png" "mimetypes/application-x-uharc.png"; do
        png="$share/icons/hicolor/${size}x${size}/$f"
        if [ ! -s "$png" ]; then
            fail "missing ${size}x${size}/$f"
        elif [ "$(head -c 8 "$png" | od -An -tx1 | tr -d ' \n')" != "89504e470d0a1a0a" ]; then
            fail "${size}x${size}/$f is not a PNG file"
        fi
    done
done

desktop="$share/applications/quovara.desktop"
if ! out="$(desktop-file-validate "$desktop" 2>&1)" || [ -n "$out" ]; then
    fail "desktop-file-validate: $out"
fi
grep -qx 'Categories=Utility;Archiving;Compression;' "$desktop" || fail "Categories line"
grep -qx 'MimeType=application/x-uharc;' "$desktop" || fail "MimeType line"
grep -qx "Exec=$prefix/bin/quovara %f" "$desktop" || fail "Exec line: $(grep '^Exec=' "$desktop")"
grep -qx 'Icon=quovara' "$desktop" || fail "Icon line"

# The actions on archives: in the desktop entry and in each file manager's files, on the
# installed program; Extract here and the conversions take every archive selected.
has_line() { grep -qxF -- "$2" "$share/$1" || fail "$1: no line '$2'"; }
has_line applications/quovara.desktop 'Actions=extract;extracthere;convertzip;convert7z;add;sfx;'
has_line kio/servicemenus/quovara.desktop 'Actions=extract;extracthere;convertzip;convert7z;sfx;'
[ -x "$share/kio/servicemenus/quovara.desktop" ] || fail "the KDE service menu is not executable"
for action in "extract-here|--extract-here|Extract here" "convert-zip|--convert zip|Convert to ZIP" \
              "convert-7z|--convert 7z|Convert to 7z"; do
    IFS='|' read -r name option caption <<<"$action"
    exec_line="Exec=$prefix/bin/quovara $option %F"
    nemo="nemo/actions/quovara-$name.nemo_action"
    caja="file-manager/actions/quovara-$name.desktop"
    for f in "$nemo" "$caja"; do
        [ -s "$share/$f" ] || fail "missing share/$f"
    done
    for f in applications/quovara.desktop kio/servicemenus/quovara.desktop "$nemo" "$caja"; do
        has_line "$f" "$exec_line"
    done
    has_line applications/quovara.desktop "Name=$caption"
    for f in kio/servicemenus/quovara.desktop "$nemo" "$caja"; do
        has_line "$f" "Name=$caption with Quovara"
    done
    has_line "$nemo" 'Selection=notnone'
    has_line "$nemo" 'Mimetypes=application/x-uharc;'
    has_line "$caja" 'SelectionCount=>0'
    has_line "$caja" 'MimeTypes=application/x-uharc;'
done

# The shown texts of the desktop entry and of every action in twelve languages: for each key,
# as many translations in each language as English lines (the program's name, "Quovara", stays
# untranslated), in UTF-8.
languages="cs de es fr it ja pl pt_BR ru tr uk zh_CN"
for f in applications/quovara.desktop kio/servicemenus/*.desktop nemo/actions/*.nemo_action \
         file-manager/actions/quovara-*.desktop; do
    for path in "$share"/$f; do
        name="${path#"$share/"}"
        iconv -f UTF-8 -t UTF-8 "$path" >/dev/null 2>&1 || fail "$name is not UTF-8"
        for key in Name GenericName Comment Keywords Tooltip; do
            english="$(grep "^$key=" "$path" | grep -cvx 'Name=Quovara')"
            for lang in $languages; do
                n="$(grep -c "^$key\[$lang\]=" "$path")"
                [ "$n" = "$english" ] || fail "$name: $n $key[$lang] line(s) for $english English"
            done
        done
    done
done
has_line applications/quovara.desktop 'GenericName[de]=Archivverwaltung'
has_line applications/quovara.desktop 'Name[ru]=Распаковать сюда'
has_line applications/quovara.desktop 'Name[fr]=Extraire…'
has_line kio/servicemenus/quovara.desktop 'Name[ja]=Quovara でここに展開'
has_line nemo/actions/quovara-extract-here.nemo_action 'Name[zh_CN]=用 Quovara 解压到此处'
has_line file-manager/actions/quovara-extract-here.desktop 'Name[de]=Mit Quovara hier entpacken'

# The MIME database built from the package knows the glob and the signature.
env -u DESTDIR update-mime-database "$share/mime" >/dev/null 2>&1 || fail "update-mime-database"
grep -qx '50:application/x-uharc:\*\.uha' "$share/mime/globs2" ||
    fail "glob *.uha not in globs2: $(grep uharc "$share/mime/globs2")"
grep -qx 'application/x-uharc:application-x-uharc' "$share/mime/icons" || fail "MIME icon"
# The compiled magic: a section for the type, then ">0=" with a two-byte length 3 and "UHA".
magic="$(od -An -c "$share/mime/magic" | tr -d ' \n')"
if ! grep -q '\[50:application/x-uharc\]\\n>0=\\0003UHA\\n' <<<"$magic"; then
    fail "signature UHA at offset 0 not in the magic file"
fi

# The association: the desktop-entry cache names Quovara for the type.
if command -v update-desktop-database >/dev/null 2>&1; then
    update-desktop-database "$share/applications" || fail "update-desktop-database"
    grep -q '^application/x-uharc=.*quovara\.desktop;' "$share/applications/mimeinfo.cache" ||
        fail "no association in mimeinfo.cache"
fi

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "Install into $prefix: program, desktop entry, file-manager actions, MIME package and" \
     "icons are in place."
