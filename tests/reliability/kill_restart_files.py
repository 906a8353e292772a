"""What has to be in the data files after each save, and what may be there while one is under way."""

import pathlib

SYSTEMS = "QuillonSystems.dat"
INDEX = "Antennas/ANTENNAS.ZEP"
LIST = "SavedSystems"
FIRST_PAIR = "home"
MODEL = "beam"

# Both systems of the pair that each round begins with.
FIELDS = {
    "AntennaBrand": "HY-GAIN", "AntennaModel": "TH7DX", "AntennaGain": "5", "CoaxBrand": "BELDEN", "CoaxType": "4",
    "CoaxModel": "8267 RG-213", "CoaxLoss": "0.71", "CoaxLength": "100", "Connectors": "2", "Frequency": "14.25",
    "XmitPower": "100", "VSWR": "1.1",
}

# The states that a new maker's file goes through: not there, made, with a model, with a band.
MAKER_STATES = (None, b"", b"[beam]\r\nGainType=dBd\r\n", b"[beam]\r\nGainType=dBd\r\nGain160=0\r\n")


def first_systems():
    """The saved-systems file that each round begins with."""
    lines = [f"[{LIST}]", f"System:1={FIRST_PAIR}", "System:2=", f"[{FIRST_PAIR}]"]
    lines += [f"System{system}{key}={value}" for system in (1, 2) for key, value in FIELDS.items()]
    return "".join(line + "\r\n" for line in lines).encode()


def parse(data):
    """Sections with their keys, nothing when any line is no whole line of such a file or stands there twice."""
    text = data.decode("cp1252", "replace")
    sections, keys = {}, None
    if text and not text.endswith("\n"):
        return None
    for line in text.splitlines():
        if line.startswith("[") and line.endswith("]") and line[1:-1] not in sections:
            keys = sections[line[1:-1]] = {}
        elif "=" in line and keys is not None and line.split("=")[0] not in keys:
            key, value = line.split("=", 1)
            keys[key] = value
        elif line:
            return None
    return sections


def read(path):
    try:
        return path.read_bytes()
    except FileNotFoundError:
        return None


class Expected:
    """The program folder as the saves that the user has seen to succeed have left it, and what is under way since."""

    def __init__(self, folder):
        self._folder = pathlib.Path(folder)
        (self._folder / SYSTEMS).write_bytes(first_systems())
        self._shipped = {path: read(self._folder / path) for path in self._files() if str(path) not in (SYSTEMS, INDEX)}
        self._index = parse(read(self._folder / INDEX) or b"")
        self._pairs = {FIRST_PAIR: FIELDS["XmitPower"]}
        self._makers = {}  # the earliest state that each new maker's file may be in
        self._open_pair = None

    def _files(self):
        return (path.relative_to(self._folder) for path in self._folder.rglob("*") if path.is_file())

    def begin_pair(self, name, power):
        """From now on a pair may be there; a pair of that name that was there may be the new one."""
        self._open_pair = (name, power)

    def end_pair(self):
        """The open pair has been saved."""
        name, power = self._open_pair
        self._pairs[name] = power
        self._open_pair = None

    def begin_maker(self, name):
        self._makers[name] = 0

    def end_maker(self, name):
        """The maker, its model and its band have been saved."""
        self._makers[name] = len(MAKER_STATES) - 1

    def last_pair(self):
        return list(self._pairs)[-1]

    @staticmethod
    def _systems(pairs):
        sections = {LIST: {f"System:{number}": name for number, name in enumerate([*pairs, ""], 1)}}
        for name, power in pairs.items():
            sections[name] = {f"System{system}{key}": value for system in (1, 2) for key, value in FIELDS.items()}
            sections[name]["System1XmitPower"] = power
        return sections

    def _check_systems(self):
        found = parse(read(self._folder / SYSTEMS) or b"?")
        if found is None:
            return [f"torn file {SYSTEMS}"]
        if found == self._systems(self._pairs):
            self._open_pair = None  # the save that the kill cut short is not there and never will be
            return []
        if self._open_pair and found == self._systems({**self._pairs, self._open_pair[0]: self._open_pair[1]}):
            self.end_pair()
            return []
        wanted = self._systems(self._pairs)
        missing = [name for name in wanted if found.get(name) != wanted[name]]
        return [f"lost save in {SYSTEMS}: {', '.join(missing)} not as saved"]

    def _check_makers(self):
        findings = []
        for name, earliest in self._makers.items():
            found = read(self._folder / "Antennas" / f"{name}.DAT")
            if found not in MAKER_STATES:
                findings.append(f"torn file {name}.DAT")
            elif MAKER_STATES.index(found) < earliest:
                findings.append(f"lost save in {name}.DAT")
            else:
                self._makers[name] = MAKER_STATES.index(found)
        return findings

    def _check_index(self):
        found = parse(read(self._folder / INDEX) or b"")
        if found is None:
            return [f"torn file {INDEX}"]
        wrong = [name for name, keys in self._index.items() if found.get(name) != keys]
        for name, state in self._makers.items():
            entry = {key: value for key, value in found.get(name, {}).items() if key}  # a new section opens with "="
            is_whole = set(entry) == {"DateCreated", "LastModified", "NumEntries"} and entry["NumEntries"] == "1"
            # The index is written behind the model, and once more behind the band.
            if not is_whole and (entry or state == len(MAKER_STATES) - 1):
                wrong.append(name)
        return [f"lost save in {INDEX}: {', '.join(wrong)} not as saved"] if wrong else []

    def check_saves(self):
        """What is wrong with the files after a kill; what the kill cut short is settled by what is found."""
        changed = [path for path, data in self._shipped.items() if read(self._folder / path) != data]
        return (self._check_systems() + self._check_makers() + self._check_index() +
                [f"changed file {path}" for path in changed])

    def check_strays(self):
        """What a start has left lying about."""
        known = {*map(str, self._shipped), SYSTEMS, INDEX, *(f"Antennas/{name}.DAT" for name in self._makers)}
        return [f"stray file {path}" for path in self._files() if str(path) not in known]
