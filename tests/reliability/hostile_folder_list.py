"""Program folders that are out for trouble: what each of them does to a copy of the usual one."""

import os
import random
import shutil
import socket
import stat
import time

MIB = 1 << 20

# Where the text runs the other way, where characters are not seen or stand upon others, and what is as long as can be.
STRANGE_NAMES = ["\u202eLANIGIRO", "A\u202dB\u2066C", "\u200b\u200d\ufeff", "E" + "\u0301" * 100, "\u6f22\u5b57 \u05d0\u05d1",
                 "\U0001f4e1" * 20, "\u00ad\u2028\u2029", "\u0130\u0131\u00df\ufb03"]
UNTIDY_NAMES = ["TWO\nLINES", "\r", "\t", "\x1b[2J", '"QUOTED"', "'", "<b>BOLD", "<img src='hostname'>", "&amp;",
                "R&D", "%1 %n %s", "A|B", "A\\B", " BLANK ", "POINT.", "-rf", "[A]", "A=B", ";", "$(id)"]


def antennas(folder, name="HOSTILE"):
    return folder / "Antennas" / f"{name}.DAT"


def coax(folder, name="HOSTILE"):
    return folder / "Coax" / f"{name}.DAT"


def index(folder):
    return folder / "Antennas" / "ANTENNAS.ZEP"


def saved(folder):
    return folder / "QuillonSystems.dat"


def document(folder):
    return folder / "Help" / "Quillon.hlp"


def catalogues(folder, name="HOSTILE"):
    return antennas(folder, name), coax(folder, name)


def put(paths, data):
    """Writes the same bytes to each of the paths."""
    for path in paths:
        path.unlink(missing_ok=True)
        path.write_bytes(data)


def noise(size):
    return random.Random(size).randbytes(size)


def sparse(path, size):
    path.unlink(missing_ok=True)
    with open(path, "wb") as file:
        file.truncate(size)


def fifo(path):
    path.unlink(missing_ok=True)
    os.mkfifo(path)


def device(path, major, minor):
    """Nothing where only an administrator may: then this folder has no devices."""
    if os.geteuid() == 0:
        os.mknod(path, stat.S_IFCHR | 0o666, os.makedev(major, minor))
        path.chmod(0o666)


def listening_socket(path):
    """A socket in the file system; its name may be longer than the place that an address has for it."""
    back = os.open(".", os.O_RDONLY)
    os.chdir(path.parent)
    with socket.socket(socket.AF_UNIX) as made:
        made.bind(path.name)
    os.fchdir(back)
    os.close(back)


def folder_in_place_of(path):
    path.unlink(missing_ok=True)
    path.mkdir()
    (path / "inside").write_bytes(b"[A]\r\n")


def link(path, target):
    path.unlink(missing_ok=True)
    path.symlink_to(target)


def sections(count):
    return b"".join(b"[MODEL %d]\r\nGainType=dBd\r\nGain20=50\r\n" % number for number in range(count))


def pairs(count):
    names = b"".join(b"System:%d=PAIR %d\r\n" % (number, number) for number in range(1, count + 1))
    return b"[SavedSystems]\r\n" + names + b"".join(b"[PAIR %d]\r\nSystem1AntennaBrand=A\r\n" % n for n in range(1, count + 1))


def takes_rights(folder, mode_of_files, mode_of_folders):
    """The rights of everything below a folder, the folder itself last."""
    for path, _, names in os.walk(folder, topdown=False):
        for name in names:
            if name != "Quillon":
                os.chmod(os.path.join(path, name), mode_of_files)
        os.chmod(path, mode_of_folders)


def links(folder):
    for place in (folder / "Antennas", folder / "Coax"):
        link(place / "SELF.DAT", "SELF.DAT")
        link(place / "A.DAT", "B.DAT")
        link(place / "B.DAT", "A.DAT")
        link(place / "NOWHERE.DAT", "not there")
        link(place / "NOFOLDER.DAT", "not/there/at/all")
        link(place / "ABOVE.DAT", "../..")
        link(place / "CIRCLE", ".")
    link(index(folder), "ANTENNAS.ZEP")
    link(saved(folder), saved(folder).name)
    link(document(folder), document(folder).name)


def links_out(folder):
    outside = folder.parent / "outside"
    shutil.copytree(folder / "Antennas", outside / "Antennas")
    shutil.rmtree(folder / "Antennas")
    link(folder / "Antennas", outside / "Antennas")
    (outside / "pairs").write_bytes(b"")
    link(saved(folder), outside / "pairs")
    link(coax(folder), "/proc/self/environ")
    link(coax(folder, "FOLDER"), outside)


def without(*names):
    def lay(folder):
        for name in names:
            shutil.rmtree(folder / name) if (folder / name).is_dir() else (folder / name).unlink()
    return lay


def antennas_is_a_file(folder):
    shutil.rmtree(folder / "Antennas")
    (folder / "Antennas").write_bytes(b"[A]\r\n")


def named(names):
    def lay(folder):
        for name in names:
            for place in (folder / "Antennas", folder / "Coax"):
                with open(os.path.join(os.fsencode(place), name + b".DAT"), "wb") as file:
                    file.write(b"[" + name.replace(b"\n", b" ") + b"]\r\nGainType=dBd\r\nGain20=50\r\nLoss10=1\r\n")
    return lay


def each(make):
    """The same for one file of each catalogue."""
    return lambda folder: [make(path) for path in catalogues(folder)]


def everywhere(make):
    """The same for one file of each catalogue, the index, the saved systems and the help."""
    return lambda folder: [make(path) for path in (*catalogues(folder), index(folder), saved(folder), document(folder))]


def data(content):
    """A function that writes the same content, which it makes when it is called, to one file of each catalogue."""
    return lambda folder: put(catalogues(folder), content())


def keeps_changing(folder):
    """Runs beside the program: writes files in place, cuts them off and puts others in their places, without end."""
    contents = [sections(3000), b"", noise(5000), b"[HALF", sections(1)]
    for number in range(1 << 30):
        for path in (*catalogues(folder), index(folder), saved(folder)):
            content = contents[number % len(contents)]
            if number % 3 == 0:
                other = path.with_suffix(".other")
                other.write_bytes(content)
                other.replace(path)
            else:
                path.write_bytes(content)
        time.sleep(0.002)


# Name, what is done to a copy of the usual folder, what goes on in it while the program runs.
FOLDERS = [
    ("the usual one", lambda folder: None, None),
    ("binary makers", data(lambda: noise(200_000)), None),
    ("2 GB makers", each(lambda path: sparse(path, 2 << 30)), None),
    ("16 MB of NULs", each(lambda path: sparse(path, 16 * MIB)), None),
    ("pipes", everywhere(fifo), None),
    ("endless device", each(lambda path: device(path, 1, 5)), None),
    ("full device", each(lambda path: device(path, 1, 7)), None),
    ("sockets", each(listening_socket), None),
    ("folders for files", everywhere(folder_in_place_of), None),
    ("links in circles and to nowhere", links, None),
    ("links out of the folder", links_out, None),
    ("100,000 sections", data(lambda: sections(100_000)), None),
    ("one line of 50 MB", data(lambda: b"[MODEL]\r\nGain20=" + b"5" * (50 * MIB)), None),
    ("one line of 15 MB", data(lambda: b"[MODEL]\r\nGain20=" + b"5" * (15 * MIB)), None),
    ("one section name of 15 MB", data(lambda: b"[" + b"A" * (15 * MIB) + b"]\r\nGain20=5\r\n"), None),
    ("16 MB of the shortest sections", data(lambda: b"[]\n" * (16 * MIB // 3)), None),
    ("16 MB of line ends", data(lambda: b"\r" * (16 * MIB)), None),
    ("500,000 keys", data(lambda: b"[MODEL]\n" + b"Gain20=5\n" * 500_000), None),
    ("5,000 makers' files without a right", lambda folder: (named([b"M%d" % n for n in range(5000)])(folder),
                                                            takes_rights(folder / "Antennas", 0, 0o755)), None),
    ("unreadable files", lambda folder: takes_rights(folder, 0, 0o755), None),
    ("unreadable folders", lambda folder: [(folder / name).chmod(0) for name in ("Antennas", "Coax", "Help")], None),
    ("folders that do not let in", lambda folder: [(folder / name).chmod(0o444) for name in ("Antennas", "Coax")], None),
    ("everything read-only", lambda folder: takes_rights(folder, 0o444, 0o555), None),
    ("bidirectional and unseen names", named([os.fsencode(name) for name in STRANGE_NAMES]), None),
    ("untidy names", named([os.fsencode(name) for name in UNTIDY_NAMES]), None),
    ("names that are no text", named([bytes([code]) * 3 for code in range(0x80, 0x100)]), None),
    ("longest names", named([bytes([letter]) * 251 for letter in range(65, 91)]), None),
    ("10,000 makers", named([b"MAKER %d" % number for number in range(10_000)]), None),
    ("10,000 saved pairs", lambda folder: put([saved(folder)], pairs(10_000)), None),
    ("no antennas", without("Antennas"), None),
    ("the program alone", without("Antennas", "Coax", "Help", "QuillonSystems.dat"), None),
    ("a file for the antennas", antennas_is_a_file, None),
    ("empty index", lambda folder: put([index(folder)], b""), None),
    ("binary index and saved systems", lambda folder: put([index(folder), saved(folder)], noise(2 * MIB)), None),
    ("NUL bytes", data(lambda: b"[A\0B]\r\nGain20=5\0\0\r\n\0=\0\r\n[\0]\r\n" * 1000), None),
    ("UTF-16", data(lambda: sections(50).decode().encode("utf-16")), None),
    ("UTF-8 with a byte order mark", data(lambda: b"\xef\xbb\xbf" + sections(50)), None),
    ("2 GB of help", lambda folder: sparse(document(folder), 2 << 30), None),
    ("binary help", lambda folder: put([document(folder)], noise(MIB)), None),
    ("help nested without end", lambda folder: put([document(folder)], b"<div><table><tr><td>" * 50_000), None),
    ("help that reaches out", lambda folder: put([document(folder)], b"<img src='file:///etc/hostname'>" * 20_000), None),
    ("files that keep changing", lambda folder: None, keeps_changing),
]
