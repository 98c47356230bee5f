"""Reads the storeys out of scripts/layers.txt, for the checks and for the picture made from them."""
import dataclasses

TABLE = "scripts/layers.txt"


@dataclasses.dataclass
class Storeys:
    folder: str
    rooms: list  # names from the ground up
    about: dict  # {room: what it holds, in a line}
    knot: int    # how many units may use each other in a circle

    def room_of(self, path):
        """The room that a file of the repository lies in; None outside of the rooms."""
        if not path.startswith(self.folder + "/"):
            return None
        room = path[len(self.folder) + 1:].split("/")[0]
        return room if room in self.rooms else None

    def runs_upward(self, start, end):
        return self.rooms.index(start) < self.rooms.index(end)


def lines():
    for line in open(TABLE, encoding="utf-8"):
        line = line.split("#")[0].strip()
        if line:
            yield line


def read_storeys():
    found, about, knot = [], {}, 0
    for line in lines():
        words = line.split()
        if words[0] == "storeys":
            found.append(Storeys(words[1].rstrip(":"), words[2:], {}, 0))
        elif words[0] == "about":
            about[words[1].rstrip(":")] = " ".join(words[2:])
        elif words[0] == "knot":
            knot = int(words[1])
    for storeys in found:
        storeys.about = about
        storeys.knot = knot
    return found
