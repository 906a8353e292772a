"""What a traced program wrote, and where it connected to, step by step."""

import collections
import os
import re

TRACED = ("open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,link,linkat,symlink,symlinkat,"
          "truncate,ftruncate,fallocate,chmod,fchmod,fchmodat,chown,fchown,lchown,fchownat,utimensat,mknod,mknodat,setxattr,"
          "fsetxattr,socket,connect,bind,execve")
OPENS = ("open", "openat", "creat")
ON_DESCRIPTORS = ("ftruncate", "fchmod", "fchown", "fallocate", "fsetxattr")
WRITING_FLAGS = re.compile(r"\bO_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b")
NETWORK = re.compile(r"\b(AF|PF)_(INET6?|PACKET|NETLINK)\b")

LINE = re.compile(r"(\d+\.\d+) (\w+)\((.*)\) = (.*)")
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')
DESCRIPTOR = re.compile(r"\d+<([^>]*)>")
FOLDER = re.compile(r"(?:AT_FDCWD|\d+)<([^>]*)>, $")

Call = collections.namedtuple("Call", "time name paths line")


def plain(text):
    """A string of a trace as the bytes that it stands for."""
    return text.encode("latin-1", "backslashreplace").decode("unicode_escape")


def paths_of(name, arguments):
    """The paths that a call names, those of descriptors included. Relative ones are joined with the folder in front."""
    if name in ON_DESCRIPTORS:
        return [match.group(1) for match in DESCRIPTOR.finditer(arguments)][:1]
    found = []
    for match in TEXT.finditer(arguments):
        folder = FOLDER.search(arguments[:match.start()])
        found.append(os.path.normpath(os.path.join(folder.group(1) if folder else "", plain(match.group(1)))))
    return found


class TraceLog:
    """The calls of a trace, one file a thread, in the order of their times."""

    def __init__(self, folder):
        self.calls = []
        for file in folder.iterdir():
            for line in file.read_text(errors="surrogateescape").splitlines():
                if match := LINE.match(line):
                    when, name, arguments, _ = match.groups()
                    self.calls.append(Call(float(when), name, paths_of(name, arguments), line))
        self.calls.sort()

    def network(self):
        """Calls that reach for another machine, or ask for the address of one."""
        return [call for call in self.calls if call.name in ("socket", "connect", "bind") and NETWORK.search(call.line)]

    def connected(self):
        """Paths of the sockets that it connected to."""
        return {match.group(1) for call in self.calls if call.name == "connect"
                for match in re.finditer(r'sun_path=@?"([^"]*)"', call.line)}

    def writes(self):
        """Calls that change, or mean to change, something in the file system."""
        for call in self.calls:
            if call.name in ("socket", "connect", "execve"):
                continue
            if call.name == "bind" and "sun_path" not in call.line:
                continue
            if call.name not in OPENS or call.name == "creat" or WRITING_FLAGS.search(call.line):
                yield call
