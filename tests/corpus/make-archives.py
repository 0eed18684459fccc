#!/usr/bin/env python3
"""Writes the archives in tests/corpus/archives/, byte by byte, so that each can lie in its own way.

The tests say which of them are opened and which are refused, and why. Running this again gives the same
bytes. An archive that would be large is stored deflated, as <name>.zip.gz.
"""
import gzip
import pathlib
import struct
import zlib

OUT = pathlib.Path(__file__).parent / "archives"
STANDARD = b'<Standard Version="2026" Unit="0"><Check Type="101"/></Standard>\n'
REGULAR, FOLDER, LINK, DEVICE, PIPE = 0o100644, 0o040755, 0o120777, 0o020666, 0o010644


def deflate(data, level=9):
    packer = zlib.compressobj(level, zlib.DEFLATED, -15)
    return packer.compress(data) + packer.flush()


class Entry:
    """One entry. Fields given by name go into both headers, with "local_" or "central_" into one of them."""

    def __init__(self, name, data=STANDARD, method=8, packed=None, **fields):
        self.name = name if isinstance(name, bytes) else name.encode()
        self.packed = packed if packed is not None else deflate(data) if method == 8 else data
        self.fields = dict(made=(3 << 8) | 20, needed=20, flags=2048, method=method, date=0x00210000,
                           crc=zlib.crc32(data), packed_size=len(self.packed), size=len(data), name=self.name,
                           extra=b"", comment=b"", attributes=REGULAR << 16, tail=b"")
        self.fields.update(fields)

    def field(self, side, key):
        return self.fields.get(f"{side}_{key}", self.fields[key])

    def common(self, side):
        get = lambda key: self.field(side, key)
        return struct.pack("<HHHIIIIHH", get("needed"), get("flags"), get("method"), get("date"), get("crc"),
                           get("packed_size"), get("size"), len(get("name")), len(get("extra")))

    def local(self):
        return (b"PK\3\4" + self.common("local") + self.field("local", "name") + self.field("local", "extra")
                + self.packed + self.fields["tail"])

    def central(self, offset):
        get = lambda key: self.field("central", key)
        return (b"PK\1\2" + struct.pack("<H", get("made")) + self.common("central")
                + struct.pack("<HHHII", len(get("comment")), 0, 0, get("attributes"), self.fields.get("offset", offset))
                + get("name") + get("extra") + get("comment"))


def end(count, size, offset, comment=b"", disk=0):
    return b"PK\5\6" + struct.pack("<HHHHIIH", disk, disk, min(count, 0xffff), min(count, 0xffff),
                                   size & 0xffffffff, offset & 0xffffffff, len(comment)) + comment


def end64(count, size, offset, position, disks=1):
    record = b"PK\6\6" + struct.pack("<QHHIIQQQQ", 44, 45, 45, 0, 0, count, count, size, offset)
    return record + b"PK\6\7" + struct.pack("<IQI", 0, position, disks)


def archive(*entries, prefix=b"", comment=b"", count=None, wide=False, **lies):
    body, central = b"", b""
    for entry in entries:
        central += entry.central(len(body))
        body += entry.local()
    count = len(entries) if count is None else count
    size, offset = lies.get("size", len(central)), lies.get("offset", len(body))
    tail = end64(lies.get("count64", count), lies.get("size64", size), lies.get("offset64", offset),
                 lies.get("position64", len(prefix + body + central))) if wide else b""
    return prefix + body + central + tail + end(count, size, offset, comment, lies.get("disk", 0))


def zip64_extra(*sizes):
    return struct.pack("<HH", 1, 8 * len(sizes)) + b"".join(struct.pack("<Q", size) for size in sizes)


def write(name, data):
    if len(data) > 100_000:
        (OUT / f"{name}.zip.gz").write_bytes(gzip.compress(data, 9, mtime=0))
    else:
        (OUT / f"{name}.zip").write_bytes(data)


def good_archives():
    yield "good-plain", archive(Entry("Steel.kvstd"), Entry("101/frame.slddrt", b"sheet format"))
    yield "good-stored", archive(Entry("Steel.kvstd", method=0))
    yield "good-umlauts", archive(Entry("Schweißteile.kvstd"), Entry("図面/枠.txt", b"x"))
    yield "good-folder-entries", archive(Entry("101/", b"", method=0, attributes=FOLDER << 16),
                                         Entry("101/a.txt"), Entry("empty/", b"", method=0))
    yield "good-folder-after-file", archive(Entry("101/a.txt"), Entry("101/", b"", method=0))
    yield "good-backslash-levels", archive(Entry("101\\deep\\a.txt"), Entry("101\\", b"", method=0))
    yield "good-empty-file", archive(Entry("Steel.kvstd", b"", method=0), Entry("b.txt", b""))
    yield "good-empty-archive", archive()
    yield "good-empty-archive-comment", archive(comment=b"nothing here")
    yield "good-comment", archive(Entry("Steel.kvstd"), comment=b"made by hand")
    yield "good-entry-comment", archive(Entry("Steel.kvstd", comment=b"PK\5\6" + b"\0" * 18))
    yield "good-prepended", archive(Entry("Steel.kvstd"), prefix=b"#!/bin/sh\nexit 1\n")
    yield "good-streamed", archive(
        Entry("Steel.kvstd", flags=2056, local_crc=0, local_packed_size=0, local_size=0,
              tail=b"PK\7\x08" + struct.pack("<III", zlib.crc32(STANDARD), len(deflate(STANDARD)), len(STANDARD))))
    yield "good-zip64-local", archive(
        Entry("Steel.kvstd", local_packed_size=0xffffffff, local_size=0xffffffff,
              local_extra=zip64_extra(len(STANDARD), len(deflate(STANDARD)))), wide=True)
    yield "good-dos", archive(Entry("STEEL~1.KVS", made=20, attributes=0x20))
    yield "good-set-user-id", archive(Entry("a.txt", attributes=0o104755 << 16))
    yield "good-device-names", archive(*[Entry(name) for name in ("CON", "aux.txt", "101/NUL", "lpt1.kvstd")])
    yield "good-dots-in-names", archive(Entry("...", b"1"), Entry("a..b", b"2"), Entry("..a/b..", b"3"))
    yield "good-256-bytes", archive(Entry("a" * 127 + "/" + "b" * 128))
    yield "good-nested-bomb", archive(Entry("inner.zip", archive(
        Entry("inner.zip", archive(Entry("zeros", b"\0" * 20_000_000)), method=8))))


def bad_names():
    for name, path in (("dotdot", "../outside.txt"), ("dotdot-deep", "a/b/../../../outside.txt"),
                       ("dotdot-inside", "a/../b.txt"), ("dotdot-backslash", "..\\outside.txt"),
                       ("dotdot-mixed", "a\\../..\\outside.txt"), ("dotdot-only", ".."), ("dotdot-folder", "../"),
                       ("absolute", "/tmp/outside.txt"), ("absolute-backslash", "\\outside.txt"),
                       ("unc", "\\\\server\\share\\outside.txt"), ("drive", "C:\\outside.txt"),
                       ("drive-slash", "c:/outside.txt"), ("drive-relative", "C:outside.txt"),
                       ("root", "/"), ("dot", "."), ("dot-level", "./a.txt"), ("empty-level", "a//b.txt"),
                       ("empty-name", ""), ("newline", "a\nb.txt"), ("escape", "\x1b[2Ja.txt"),
                       ("delete", "a\x7f.txt"), ("c1-control", "a\x85.txt"), ("nul", "Steel.kvstd\0.txt"),
                       ("nul-dotdot", "a\0/../../outside.txt")):
        yield f"name-{name}", archive(Entry("good.txt"), Entry(path))
    yield "name-invalid-utf8", archive(Entry(b"a\xff\xfe.txt"))
    yield "name-overlong-slash", archive(Entry(b"..\xc0\xafoutside.txt"))
    yield "name-surrogate", archive(Entry(b"a\xed\xa0\x80.txt"))
    yield "name-cut-utf8", archive(Entry(b"a\xe5\x9b"))
    yield "name-257-bytes", archive(Entry("a" * 128 + "/" + "b" * 128))
    yield "name-65535-bytes", archive(Entry("a/" * 32767 + "b"))
    yield "name-level-256-bytes", archive(Entry("good.txt"), Entry("a" * 256))
    yield "name-twice", archive(Entry("a.txt", b"1"), Entry("a.txt", b"2"))
    yield "name-twice-by-case", archive(Entry("a.txt", b"1"), Entry("A.TXT", b"2"))
    yield "name-twice-by-case-umlaut", archive(Entry("Öl.txt", b"1"), Entry("öl.txt", b"2"))
    yield "name-twice-by-separator", archive(Entry("a/b.txt", b"1"), Entry("a\\b.txt", b"2"))
    yield "name-folder-twice", archive(Entry("a/", b"", method=0), Entry("a/", b"", method=0))
    yield "name-folder-by-case", archive(Entry("a/x.txt"), Entry("A/y.txt"))
    yield "clash-file-then-folder", archive(Entry("a"), Entry("a/b.txt"))
    yield "clash-folder-then-file", archive(Entry("a/b.txt"), Entry("a"))
    yield "clash-folder-entry-then-file", archive(Entry("a/", b"", method=0), Entry("a"))
    yield "clash-by-case", archive(Entry("A"), Entry("a/b.txt"))


def bad_kinds():
    yield "link", archive(Entry("link", b"/etc/passwd", method=0, attributes=LINK << 16))
    yield "link-then-through-it", archive(Entry("out", b"..", method=0, attributes=LINK << 16),
                                          Entry("out/outside.txt"))
    yield "link-from-dos", archive(Entry("link", b"..", method=0, made=20, attributes=LINK << 16))
    yield "device", archive(Entry("null", b"", method=0, attributes=DEVICE << 16))
    yield "pipe", archive(Entry("pipe", b"", method=0, attributes=PIPE << 16))
    yield "folder-without-slash", archive(Entry("a", b"", method=0, attributes=FOLDER << 16))
    yield "folder-with-data", archive(Entry("a/", b"hidden", method=0))
    yield "encrypted", archive(Entry("Steel.kvstd", flags=2049))
    yield "encrypted-strongly", archive(Entry("Steel.kvstd", flags=2048 | 0x41))
    yield "encrypted-local-only", archive(Entry("Steel.kvstd", local_flags=2049))
    yield "encrypted-headers", archive(Entry("Steel.kvstd", flags=2048 | 0x2000))
    for method in (1, 9, 12, 14, 93, 99, 65535):
        yield f"method-{method}", archive(Entry("Steel.kvstd", method=method))
    yield "method-local-differs", archive(Entry("Steel.kvstd", local_method=0))


def lies():
    size = len(STANDARD)
    yield "size-too-small", archive(Entry("Steel.kvstd", size=size - 10))
    yield "size-too-small-crc-fits", archive(Entry("Steel.kvstd", size=10, crc=zlib.crc32(STANDARD[:10])))
    yield "size-too-large", archive(Entry("Steel.kvstd", size=size + 10))
    yield "size-zero", archive(Entry("Steel.kvstd", size=0, crc=0))
    yield "size-huge", archive(Entry("Steel.kvstd", size=0xfffffffe))
    yield "size-stored-too-large", archive(Entry("Steel.kvstd", method=0, size=size + 10))
    yield "size-stored-too-small", archive(Entry("Steel.kvstd", method=0, size=size - 10))
    yield "size-local-differs", archive(Entry("Steel.kvstd", local_size=size + 1))
    yield "size-packed-local-differs", archive(Entry("Steel.kvstd", local_packed_size=3))
    yield "size-packed-too-small", archive(Entry("Steel.kvstd", packed_size=10))
    yield "size-packed-too-large", archive(Entry("Steel.kvstd", packed_size=len(deflate(STANDARD)) + 20))
    yield "size-packed-huge", archive(Entry("Steel.kvstd", packed_size=0xfffffff0))
    yield "size-streamed-local-lies", archive(Entry("Steel.kvstd", flags=2056, local_size=7, local_crc=0))
    bomb = b"\0" * 2_000_000
    yield "size-hides-bomb", archive(Entry("zeros", bomb, size=1000, crc=zlib.crc32(bomb[:1000])))
    wide = dict(packed_size=0xffffffff, size=0xffffffff)
    for name, extra in (("negative", zip64_extra(2**64 - 1, 2**64 - 1)), ("huge", zip64_extra(2**62, 2**62)),
                        ("wraps", zip64_extra(size, 2**64 - 40)), ("short", zip64_extra(size))):
        yield f"zip64-{name}", archive(Entry("Steel.kvstd", extra=extra, **wide), wide=True)
    yield "zip64-no-extra", archive(Entry("Steel.kvstd", **wide), wide=True)
    yield "zip64-local-lies", archive(
        Entry("Steel.kvstd", local_packed_size=0xffffffff, local_size=0xffffffff, local_extra=zip64_extra(7, 7)),
        wide=True)
    yield "zip64-local-lacks-extra", archive(
        Entry("Steel.kvstd", local_packed_size=0xffffffff, local_size=0xffffffff), wide=True)
    yield "zip64-count-huge", archive(Entry("a.txt"), wide=True, count64=2**63)
    yield "zip64-offset-huge", archive(Entry("a.txt"), wide=True, offset64=2**63)
    yield "zip64-offset-wraps", archive(Entry("a.txt"), wide=True, offset64=2**64 - 60, size64=60)
    yield "zip64-locator-beyond-end", archive(Entry("a.txt"), wide=True, position64=2**40)
    yield "zip64-locator-at-itself", archive(Entry("a.txt"), wide=True, position64=0)
    yield "crc-wrong", archive(Entry("good.txt"), Entry("Steel.kvstd", crc=1))
    yield "crc-wrong-stored", archive(Entry("Steel.kvstd", method=0, crc=1))
    yield "crc-local-differs", archive(Entry("Steel.kvstd", local_crc=1))
    yield "data-damaged", archive(Entry("good.txt"), Entry("Steel.kvstd", packed=b"\xff" * 50))
    yield "data-behind-stream", archive(Entry("Steel.kvstd", packed=deflate(STANDARD) + b"hidden"))
    yield "data-unfinished-stream", archive(Entry("Steel.kvstd", packed=deflate(STANDARD)[:-4]))
    yield "local-name-differs", archive(Entry("good.kvstd", local_name=b"evil.kvstd"))
    yield "local-name-length-differs", archive(Entry("good.kvstd", local_name=b"../evil.kvstd"))


def overlaps():
    first, second = Entry("a.txt"), Entry("b.txt", offset=0, local_name=b"a.txt")
    yield "overlap-same-local-header", archive(first, second)
    inner = Entry("b.txt", b"inner", method=0)
    outer = Entry("a.txt", b"...." + inner.local() + b"....", method=0)
    start = outer.local().index(inner.local(), 4)
    body = outer.local()
    central = outer.central(0) + inner.central(start)
    yield "overlap-entry-inside-entry", body + central + end(2, len(central), len(body))
    yield "overlap-quoted-bomb", quoted_bomb(12, b"\0" * 300_000)
    yield "overlap-quoted-small", quoted_bomb(12, STANDARD)
    yield "overlap-entry-over-central", archive(
        Entry("a.txt", method=0, packed_size=len(STANDARD) + 40, size=len(STANDARD) + 40))


def quoted_bomb(count, data):
    """Each file begins with a stored block that quotes the next local header, and ends in one shared kernel."""
    kernel = deflate(data)
    entries = [Entry(f"{count - 1:02}", data, packed=kernel)]
    for index in reversed(range(count - 1)):
        header = entries[0].local()[:30 + len(entries[0].name)]
        data = header + data
        quote = b"\0" + struct.pack("<HH", len(header), len(header) ^ 0xffff)
        entries.insert(0, Entry(f"{index:02}", data, packed=quote + entries[0].local()))
    body = entries[0].local()
    central, at = b"", 0
    for entry in entries:
        central += entry.central(at)
        at += 30 + len(entry.name) + 5
    return body + central + end(count, len(central), len(body))


def bombs():
    yield "bomb-1-to-1000", archive(Entry("zeros", b"\0" * 10_000_000))
    yield "bomb-many-small", archive(*[Entry(f"{i}", b"\0" * 900_000) for i in range(20)])
    big = b"\0" * (129 << 20)
    yield "bomb-beyond-total", archive(Entry("zeros", big), prefix=b"\0" * 1_500_000)
    part = b"\0" * (60 << 20)
    yield "bomb-beyond-total-together", archive(*[Entry(f"{i}", part) for i in range(3)], prefix=b"\0" * 1_500_000)
    yield "bomb-folders", archive(*[Entry("/".join([f"{i}"] + ["x"] * 120) + "/y", b"", method=0)
                                    for i in range(40)])
    names = [b"%05d" % i for i in range(100_000)]
    entries = [Entry(name, b"", method=0) for name in names]
    yield "count-100000", archive(*entries, wide=True)
    yield "count-100000-one-local", many_central_headers(names)
    yield "count-4097", archive(*entries[:4097])
    yield "count-4096", archive(*entries[:4096])
    yield "count-lies-more", archive(Entry("a.txt"), Entry("b.txt"), count=3)
    yield "count-lies-fewer", archive(Entry("a.txt"), Entry("b.txt"), count=1)
    yield "count-lies-zero", archive(Entry("a.txt"), Entry("b.txt"), count=0)
    yield "count-lies-65535", archive(Entry("a.txt"), Entry("b.txt"), count=65535)


def many_central_headers(names):
    body = Entry(names[0], b"", method=0).local()
    central = b"".join(Entry(name, b"", method=0).central(0) for name in names)
    return body + central + end64(len(names), len(central), len(body), len(body + central)) + end(
        0xffff, len(central), len(body))


def broken():
    whole = archive(Entry("Steel.kvstd"), Entry("101/frame.slddrt", b"sheet format" * 9))
    central = whole.index(b"PK\1\2")
    for name, length in (("nothing", 0), ("signature", 4), ("local-header", 20), ("data", 60),
                         ("central", central), ("in-central", central + 30), ("end", len(whole) - 22),
                         ("in-end", len(whole) - 10), ("last-byte", len(whole) - 1)):
        yield f"cut-{name}", whole[:length]
    yield "cut-from-front", whole[10:]
    yield "cut-from-middle", whole[:50] + whole[70:]
    yield "central-offset-beyond-end", archive(Entry("a.txt"), offset=0x7fffffff)
    yield "central-offset-negative", archive(Entry("a.txt"), offset=0xffffffff, size=0xffffffff)
    yield "central-size-zero", archive(Entry("a.txt"), size=0)
    yield "central-extra-runs-out", archive(Entry("a.txt", central_extra=struct.pack("<HH", 1, 60000)))
    yield "local-offset-beyond-end", archive(Entry("a.txt", offset=0x7ffffff0))
    yield "local-offset-at-central", archive(Entry("a.txt", offset=len(Entry("a.txt").local())))
    yield "spanned", archive(Entry("a.txt"), disk=1)
    inner = archive(Entry("hidden.txt"))
    yield "comment-holds-archive", archive(Entry("seen.txt"), comment=inner)
    yield "comment-holds-end", archive(Entry("seen.txt"), comment=end(0, 0, 0))
    yield "comment-longer-than-told", archive(Entry("a.txt")) + b"x" * 70000
    yield "not-an-archive", STANDARD
    yield "signature-only-many", b"PK\5\6" * 20000


def main():
    OUT.mkdir(exist_ok=True)
    for old in OUT.iterdir():
        old.unlink()
    for group in (good_archives, bad_names, bad_kinds, lies, overlaps, bombs, broken):
        for name, data in group():
            write(name, data)


if __name__ == "__main__":
    main()
