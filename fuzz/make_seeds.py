#!/usr/bin/env python3
"""Cuts the shipped data into small inputs of the fuzz targets.

fuzz/make_seeds.py FOLDER: writes FOLDER/TARGET/..., one file for each input.
"""

import hashlib
import pathlib
import struct
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
RECORD, FIELD, REPEAT = b"\x1e", b"\x1f", b"\x1d"
PIECES_OF_A_FILE = 1
CHANGED_PAIR = b"\x1c"
LINES_OF_A_PAIR = 28


def sections(path):
    """The first sections of a data file, each as one text."""
    parts = path.read_bytes().split(b"[")[1:]
    return [b"[" + part for part in parts[:PIECES_OF_A_FILE]]


def names_of(section):
    """Name and first key of a section."""
    lines = section.splitlines()
    return lines[0].strip(b"[] "), lines[1].partition(b"=")[0]


def shipped():
    """Folder letter, maker and section of each piece of the catalogues."""
    for letter, folder in (b"A", "Antennas"), (b"a", "Coax"):
        for path in sorted((ROOT / "data" / folder).glob("*.DAT")):
            for section in sections(path):
                yield letter, path.stem.encode(), section


def read_seeds():
    for _, _, section in shipped():
        name, key = names_of(section)
        for part in b"\0\1\2":
            yield section + RECORD + bytes([part]) + name + FIELD + key + FIELD + b"none " + FIELD + b"\x14"
    many = b"".join(b"[S%d]\n" % number for number in range(40))
    for part in b"\0\1\2":
        for name in b"s39", b"none":
            yield many + b"a=1\n" + RECORD + bytes([part]) + name + FIELD + b"a"
        yield REPEAT + b"\xff[a quite long name of a section]\nkey=1\n" + RECORD + bytes([part])
        yield b"[s]\n" + RECORD + bytes([part]) + b"s"


def write_seeds():
    steps = [b"wGainType" + FIELD + b"Gain20" + FIELD + b"77", b"kKT-34A" + FIELD + b"Gain20", b"sKT-34A", b"cnew", b"b",
             b"e", b"d", b"g" + b"KT-34A" + FIELD + b"Gain15", b"o" + FIELD + FIELD + b"[KT-34A]\nGain20=1\n"]
    texts = [b"", b"[KT-34A]\r\nGainType=dBi\r\nGain20=77\r\n\r\n[B]\r\nGain15=74", b"; c\nno\n[b]\n= \n[b]\nx=' 1 '\n"]
    for state in range(0, 128, 4):
        for place, text in enumerate(texts):
            chosen = steps[place:] + steps[:place]
            yield bytes([state | place]) + text + RECORD + RECORD.join(chosen)
            yield bytes([state | place]) + text + RECORD + RECORD.join([b"b", *chosen[:3], b"g", b"e"])
    for text in texts:
        yield b"\xff" + text + RECORD + b"B" + FIELD + b"Gain20" + FIELD + b"1" + RECORD + b"C" + FIELD + FIELD
    for state in (0x01, 0x05, 0x29):
        for call in range(16):
            yield bytes([state]) + texts[1] + RECORD + bytes([ord("0") + call, 0]) + RECORD + steps[0] + RECORD + steps[1]
    for call in range(40):
        yield b"\0" + texts[1] + RECORD + bytes([ord("0") + call, call]) + RECORD + steps[0] + RECORD + steps[1]


def catalogue_seeds():
    for letter, maker, section in shipped():
        yield letter + maker + b".DAT" + FIELD + section + RECORD + RECORD + (b"\0" if letter == b"A" else b"\1")
        yield letter + maker + b".DAT" + FIELD + section + RECORD + RECORD + b"\2" + maker + RECORD + names_of(section)[0]
    for letter in b"LPDlpd":
        yield bytes([letter]) + b"X.DAT" + FIELD + b"Y.dat" + RECORD + b"AY.dat" + FIELD + b"[m]\nGain20=1\n" + RECORD + RECORD + b"\3"
        yield bytes([letter]) + b"X.DAT" + FIELD + b"Y.dat" + RECORD + b"aY.dat" + FIELD + b"[m]\nLoss1=1\n" + RECORD + RECORD + b"\1"
    for maker in (b"AB", b"x/y", b""):
        for failing in range(12):
            yield (b"AAb.dat" + FIELD + b"[m]\nGain20=1\n" + RECORD + b"AaB.dat" + FIELD + RECORD + RECORD + b"\2" + maker + RECORD
                   + b"Cables" + RECORD + bytes([failing]))


def pair_seeds():
    whole = CHANGED_PAIR + RECORD
    for part in b"\0\1":
        yield whole + b"Other" + RECORD + b"Home" + RECORD + bytes([part])
    yield CHANGED_PAIR + b"\2=Other" + RECORD + b"Home" + RECORD + b"Home" + RECORD + b"\0"
    for line in range(LINES_OF_A_PAIR):
        for value in (b"", b"=", b"=abc", b"=1e39", b"=-40000", b"=" + b"9" * 50, b'="2"', b"=x\0y", b"=+1"):
            yield CHANGED_PAIR + bytes([line]) + value + RECORD + b"N" + RECORD + RECORD + b"\1"
    for name in (b"Systems", b"Antennas", b"Coax", b"other"):
        yield whole + b"N" + RECORD + RECORD + b"\7S" + FIELD + b"K" + FIELD + b"v" + FIELD + name
    yield whole + b"N" + RECORD + RECORD + b"\7S" + FIELD + b"k" * 256 + FIELD + b"v"
    yield whole + b"n" * 300
    yield b"[SavedSystems]\nSystem:1=a\nSYSTEM:1=b\nSystem:2='a' \n[a]\nSystem1CoaxLoss=1\n" + RECORD + b"b"


def number_seeds():
    for text in (b"1.25", b"-0.5e3", b" \t+12abc", b".5", b"1e39", b"1e-50", b"nan", b"340282356779733661637539395458142568447"):
        for mask in range(128, 144):
            yield bytes([mask]) + text + RECORD
    for number in range(16):
        yield bytes([number]) + b"\1" + bytes([number]) + struct.pack(">h", number * 16) + b"##0.00"
        yield bytes([number]) + b"\0" + struct.pack(">fh", 1.1 ** (number * 8 - 64), 48 + number)


def comparison_seeds():
    figures = {"gain": 71, "loss": 13, "length": 1000, "frequency": 143, "power": 1000, "vswr": 15, "connector": 1}
    tenths = b"".join(b"\2" + struct.pack(">h", value) for value in figures.values())
    for part in range(5):
        for flags in (0, 3, 7, 11, 19, 35, 67):
            system = bytes([flags]) + tenths + b"KT-34A" + RECORD
            yield bytes([part]) + system + system + tenths * 4
            yield bytes([part]) + system + bytes([3]) + tenths[::-1] + RECORD + tenths[3:] * 4


def name_seeds():
    names = ["KLM", "I0JXX", "Ä€", "a.", "a ", "..", "x/y", "x|y", "a\\b", "'q'", "", "n" * 26, "m" * 255, "\ud83d\ude00", "\t"]
    for maker in names:
        for model in ("KT-34A", "[x]", "=", ";", '"a"'):
            both = [text.encode("utf-8", "surrogatepass") for text in (maker, model)]
            yield b"\0\x12\x34\0\1" + RECORD.join(both) + RECORD + b"AKLM.dat" + FIELD + b"[KT-34A]\r\nGain20=7\r\n" + RECORD
    for failing in range(1, 36):
        yield b"\0\x02\x34\2\0\5" + b"KLM" + RECORD + b"New" + RECORD + bytes([0, failing])
        yield (b"\0\x02\x34\2\0\5" + b"KLM" + RECORD + b"KT" + RECORD + b"AKLM.DAT" + FIELD + b"[KT]\nGain20=7\n" + RECORD
               + bytes([0, failing]))
        yield (b"\0\x02\x34\2\0\5" + b"KLM" + RECORD + b"KT" + RECORD + b"AKLM.DAT" + FIELD + b"[KT]\nGain20=7\n" + RECORD
               + b"AANTENNAS.ZEP" + FIELD + b"[KLM]\nDateCreated=1\n" + RECORD + bytes([0, failing]))
    for maker in (b"\xc1\x81", b"\xe0\x81\x81", b"\xe0\x82\xac", b"\xff", b"\xe2\x82"):
        yield b"\0\0\0" + maker + RECORD + maker + RECORD
    yield b"\0\0\0KLM" + RECORD + b"a" + RECORD + b"L.OTHER.DAT.tmp" + FIELD + b"KLM.DAT" + RECORD + b"D.ANTENNAS.ZEP.tmp" + FIELD + RECORD
    for target in (b"KLM.DAT", b"none", b"other"):
        yield b"\0\0\0KLM" + RECORD + b"a" + RECORD + b"LKLM.DAT" + FIELD + target + RECORD + b"A.other.tmp" + FIELD + RECORD
    yield b"\1\0\0KLM" + RECORD + "šœžÿ÷".encode() + RECORD + b"AKLM.DAT" + FIELD + b"[\x9a\x9c\x9e\xff\xf7]\n" + RECORD
    yield b"\1\x3f\xff" + b"\0\1" * 14 + b"KLM" + RECORD + b"A" + RECORD + b"AANTENNAS.ZEP" + FIELD + b"[KLM]\nNumEntries=1\n"


SEEDS = {"profile_read": read_seeds, "profile_write": write_seeds, "catalogue": catalogue_seeds, "saved_pair": pair_seeds,
         "numbers": number_seeds, "comparison": comparison_seeds, "names": name_seeds}


def main():
    for target, seeds in SEEDS.items():
        folder = pathlib.Path(sys.argv[1]) / target
        folder.mkdir(parents=True, exist_ok=True)
        for seed in seeds():
            (folder / hashlib.sha1(seed).hexdigest()).write_bytes(seed)


if __name__ == "__main__":
    sys.exit(main())
