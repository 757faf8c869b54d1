#!/usr/bin/env python3
"""Reads a converted archive with readers independent of libarchive and prints one line per
entry: type (d or f), mode (octal), size, CRC-32 (8 hex digits, files only), modification time
(seconds since 1970) and the name, tab-separated; for a zip also whether its UTF-8 flag is set.

    read_converted.py zip|7z|tar.xz|tar.zst ARCHIVE
"""
import struct
import subprocess
import sys
import tarfile
import time
import zipfile
import zlib


def tar_lines(tar):
    out = []
    for m in tar:
        crc = ""
        if m.isfile():
            data = tar.extractfile(m).read()
            crc = "%08X" % (zlib.crc32(data) & 0xFFFFFFFF)
        out.append(("d" if m.isdir() else "f", "%o" % m.mode, str(m.size), crc,
                    str(int(m.mtime)), m.name.rstrip("/")))
    return out


def unix_time(info):
    """The zip's own time in seconds: the extended timestamp (extra field 0x5455) when the
    member has one, else its DOS date and time (local time, two-second steps)."""
    extra = info.extra
    at = 0
    while at + 4 <= len(extra):
        tag, size = struct.unpack("<HH", extra[at:at + 4])
        body = extra[at + 4:at + 4 + size]
        if tag == 0x5455 and size >= 5 and body[0] & 1:
            return struct.unpack("<I", body[1:5])[0]
        at += 4 + size
    return int(time.mktime(info.date_time + (0, 0, -1)))


def zip_lines(path):
    out = []
    with zipfile.ZipFile(path) as z:
        for i in z.infolist():
            mode = (i.external_attr >> 16) & 0o7777
            stamp = unix_time(i)
            utf8 = "utf8" if i.flag_bits & 0x800 else "noutf8"
            crc = "" if i.is_dir() else "%08X" % i.CRC
            if not i.is_dir():
                # Read it, so that a damaged member fails here.
                z.read(i)
            out.append(("d" if i.is_dir() else "f", "%o" % mode, str(i.file_size), crc,
                        str(stamp), i.filename.rstrip("/"), utf8))
    return out


def sevenzip_lines(path):
    text = subprocess.run(["7z", "l", "-slt", "-sccUTF-8", path], capture_output=True,
                          check=True).stdout.decode("utf-8")
    blocks = text.split("----------", 1)[1].split("\n\n")
    out = []
    for block in blocks:
        f = {}
        for line in block.strip().splitlines():
            if " = " in line:
                k, v = line.split(" = ", 1)
                f[k] = v
            elif line.endswith(" ="):
                f[line[:-2]] = ""
        if "Path" not in f:
            continue
        attrs = f.get("Attributes", "")
        is_dir = attrs.startswith("D")
        mode = ""
        for part in attrs.split():
            if len(part) == 10 and part[0] in "-d":
                bits = 0
                for j, ch in enumerate(part[1:]):
                    if ch != "-":
                        bits |= 1 << (8 - j)
                mode = "%o" % bits
        stamp = int(time.mktime(time.strptime(f["Modified"].split(".")[0], "%Y-%m-%d %H:%M:%S")))
        size = f.get("Size", "0") or "0"
        # 7-Zip keeps no CRC of an empty file.
        crc = "" if is_dir else f.get("CRC", "") or ("00000000" if size == "0" else "")
        out.append(("d" if is_dir else "f", mode, size, crc, str(stamp), f["Path"]))
    # 7-Zip checks every member's CRC itself.
    subprocess.run(["7z", "t", path], capture_output=True, check=True)
    return out


def main():
    kind, path = sys.argv[1], sys.argv[2]
    if kind == "zip":
        lines = zip_lines(path)
    elif kind == "7z":
        lines = sevenzip_lines(path)
    elif kind == "tar.xz":
        with tarfile.open(path, "r:xz") as tar:
            lines = tar_lines(tar)
    elif kind == "tar.zst":
        plain = subprocess.run(["zstd", "-dc", path], capture_output=True, check=True).stdout
        import io
        with tarfile.open(fileobj=io.BytesIO(plain), mode="r:") as tar:
            lines = tar_lines(tar)
    else:
        sys.exit("unknown format " + kind)
    for line in lines:
        print("\t".join(line))


main()
