"""What a screen reader sees: the tree of a program's windows and controls."""

from gi.repository import Gio, GLib

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_STATES = {"active": 1, "checked": 4, "enabled": 8, "focused": 12, "modal": 16, "pressed": 20,
           "selected": 23, "showing": 25, "visible": 30}


class Node:
    """A control as assistive technology knows it. Nothing is remembered: each question asks the
    program anew."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def __eq__(self, other):
        if not isinstance(other, Node):
            return NotImplemented
        return (self.owner, self.path) == (other.owner, other.path)

    def _call(self, interface, method, arguments=None):
        return self.bus.call_sync(self.owner, self.path, interface, method, arguments, None,
                                  Gio.DBusCallFlags.NONE, 10000, None).unpack()

    def _get(self, interface, name):
        arguments = GLib.Variant("(ss)", (interface, name))
        return self._call("org.freedesktop.DBus.Properties", "Get", arguments)[0]

    @property
    def name(self):
        return self._get(_ACCESSIBLE, "Name")

    @property
    def description(self):
        return self._get(_ACCESSIBLE, "Description")

    @property
    def role(self):
        return self._call(_ACCESSIBLE, "GetRoleName")[0]

    @property
    def children(self):
        found = self._call(_ACCESSIBLE, "GetChildren")[0]
        return [Node(self.bus, owner, path) for owner, path in found]

    def has(self, state):
        low, high = self._call(_ACCESSIBLE, "GetState")[0]
        return bool((low | high << 32) >> _STATES[state] & 1)

    @property
    def text(self):
        """The text typed into a box."""
        arguments = GLib.Variant("(ii)", (0, -1))
        return self._call("org.a11y.atspi.Text", "GetText", arguments)[0]

    @property
    def place(self):
        """Left, top, width and height on the screen."""
        arguments = GLib.Variant("(u)", (0,))
        return self._call("org.a11y.atspi.Component", "GetExtents", arguments)[0]

    def press(self):
        """Does what a click on the control does, where no pointer can be moved."""
        self._call("org.a11y.atspi.Action", "DoAction", GLib.Variant("(i)", (0,)))

    def walk(self):
        """This control and everything in it, in reading order."""
        yield self
        for child in self.children:
            yield from child.walk()

    def all(self, role, name=None):
        return [node for node in self.walk()
                if node.role == role and (name is None or node.name == name)]

    def find(self, role, name=None):
        """The one control of this role and name; None where there is none."""
        found = self.all(role, name)
        if len(found) > 1:
            raise AssertionError(f"{len(found)} controls are a {role} called {name}")
        return found[0] if found else None

    def describe(self, depth=0):
        """The tree in words, for whoever reads a failure."""
        lines = ["  " * depth + f"{self.role}: {self.name!r}"]
        for child in self.children:
            lines.append(child.describe(depth + 1))
        return "\n".join(lines)


def programs(bus):
    """The programs that assistive technology can read, by process id."""
    root = Node(bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
    found = {}
    for program in root.children:
        arguments = GLib.Variant("(s)", (program.owner,))
        (process,) = bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                   "org.freedesktop.DBus", "GetConnectionUnixProcessID",
                                   arguments, None, Gio.DBusCallFlags.NONE, 5000, None).unpack()
        found[process] = program
    return found
