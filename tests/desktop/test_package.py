"""What is installed: where it lies, what the validators say, and that the menu entry starts it."""

import glob
import os
import re
import shutil
import signal
import socket
import subprocess
import tempfile
import unittest

import reading
from desktop_case import EXECUTABLE, HOUSE, STANDARD_TITLE
from screen import Screen, wait_for

BUILD = os.path.dirname(EXECUTABLE)
PICTURES = [os.path.basename(path) for path in glob.glob(os.path.join(HOUSE, "docs/pictures/*.png"))]
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)


# Debian 13 asks for a home page, which the program does not have yet.
NO_HOME_PAGE, NO_GOOD_METAINFO = "url-homepage-missing", "appstream-metadata-validation-failed"


def ended(command, **options):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=120, check=False, **options)


def words_of(*command):
    """The words of a command, however it ends."""
    return ended(command).stdout


def output_of(*command, **options):
    """The words of a command that must succeed."""
    done = ended(command, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command[0]} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


class PackageCase(unittest.TestCase):
    """The Debian package, made once and unpacked."""

    @classmethod
    def setUpClass(cls):
        cls.temporary = tempfile.mkdtemp(prefix="karvenis-package-")
        cls.addClassCleanup(shutil.rmtree, cls.temporary, ignore_errors=True)
        output_of("cpack", "--config", os.path.join(BUILD, "CPackConfig.cmake"),
                  "-B", cls.temporary)
        (cls.package,) = glob.glob(os.path.join(cls.temporary, "*.deb"))
        cls.root = os.path.join(cls.temporary, "root")
        output_of("dpkg-deb", "--extract", cls.package, cls.root)

    def installed(self, path):
        found = os.path.join(self.root, "usr", path)
        self.assertTrue(os.path.isfile(found), found)
        return found


class Contents(PackageCase):
    def test_everything_lies_where_it_belongs(self):
        found = sorted(os.path.relpath(os.path.join(folder, name), self.root)
                       for folder, _, names in os.walk(self.root) for name in names)
        icons = [f"usr/share/icons/hicolor/{size}x{size}/apps/karvenis.png" for size in ICON_SIZES]
        pictures = [f"usr/share/doc/karvenis/pictures/{name}" for name in PICTURES]
        self.assertEqual(found, sorted(icons + pictures + [
            "usr/bin/karvenis",
            "usr/libexec/karvenis/karvenis-bell",
            "usr/share/applications/karvenis.desktop",
            "usr/share/doc/karvenis/KULLANIM.html",
            "usr/share/doc/karvenis/changelog.gz",
            "usr/share/doc/karvenis/copyright",
            "usr/share/icons/hicolor/scalable/apps/karvenis.svg",
            "usr/share/lintian/overrides/karvenis",
            "usr/share/man/man6/karvenis.6.gz",
            "usr/share/man/tr/man6/karvenis.6.gz",
            "usr/share/metainfo/org.example.karvenis.metainfo.xml"]))

    def test_it_takes_little_room_beside_the_guide(self):
        size = int(output_of("dpkg-deb", "-f", self.package, "Installed-Size"))
        guide = os.path.join(self.root, "usr/share/doc/karvenis")
        of_guide = int(output_of("du", "--apparent-size", "-sk", guide).split()[0])
        self.assertLess(size - of_guide, 1280)

    def test_the_guide_shows_its_pictures_and_leads_to_its_chapters(self):
        with open(self.installed("share/doc/karvenis/KULLANIM.html"), encoding="utf-8") as file:
            page = file.read()
        shown = set(re.findall(r'<img [^>]*src="([^"]+)"', page))
        self.assertEqual(shown, {f"pictures/{name}" for name in PICTURES})
        chapters = set(re.findall(r'<h2 id="([^"]+)"', page)) - {"i\u0307çindekiler"}
        self.assertEqual(set(re.findall(r'<a href="#([^"]+)"', page)), chapters)
        self.assertEqual(page.count("<table>"), 5)

    def test_it_depends_on_the_toolkit_and_not_on_tools(self):
        depends = output_of("dpkg-deb", "-f", self.package, "Depends")
        names = {name.removesuffix("t64")  # as Debian 13 calls some
                 for name in re.findall(r"(?:^|, )([a-z0-9.+-]+)", depends)}
        self.assertLessEqual({"libc6", "libcups2", "libqt6core6", "libqt6gui6", "libqt6svg6",
                              "libqt6widgets6"}, names)
        # The keys of boxes need a private part of the toolkit, which is that of one version.
        names -= {"qt6-base-abi", "qt6-base-private-abi"}
        self.assertFalse([name for name in names if not name.startswith("lib")])

    def test_what_it_recommends_is_called_so_by_this_system(self):
        recommends = output_of("dpkg-deb", "-f", self.package, "Recommends").strip().split(", ")
        self.assertLessEqual({"libcanberra0", "libcanberra-pulse", "qt6-wayland"},
                             set(recommends))
        told = output_of("dpkg-query", "-W", "-f", "${binary:Package} ${db:Status-Status}\n",
                         *recommends)
        self.assertEqual(told.count(" installed\n"), len(recommends), told)

    def test_icons_have_their_size(self):
        for size in ICON_SIZES:
            icon = self.installed(f"share/icons/hicolor/{size}x{size}/apps/karvenis.png")
            self.assertEqual(output_of("identify", "-format", "%wx%h", icon), f"{size}x{size}")

    def test_the_release_is_the_program_s_version(self):
        version = output_of("dpkg-deb", "-f", self.package, "Version").strip()
        for path in ("packaging/org.example.karvenis.metainfo.xml", "packaging/debian/changelog",
                     "packaging/karvenis.6", "packaging/tr/karvenis.6"):
            with open(os.path.join(HOUSE, path), encoding="utf-8") as file:
                self.assertIn(version, file.read(), path)


class Validators(PackageCase):
    def test_desktop_entry(self):
        entry = self.installed("share/applications/karvenis.desktop")
        self.assertEqual(output_of("desktop-file-validate", entry), "")

    def test_metainfo(self):
        metainfo = self.installed("share/metainfo/org.example.karvenis.metainfo.xml")
        told = words_of("appstreamcli", "validate", "--pedantic", "--no-net", metainfo)
        self.assertIn("Validation", told)
        faults = re.findall(r"^[EW]: .*: (\S+)$", told, re.MULTILINE)
        self.assertLessEqual(set(faults), {NO_HOME_PAGE}, told)

    def test_manual_pages(self):
        for page in ("share/man/man6/karvenis.6.gz", "share/man/tr/man6/karvenis.6.gz"):
            environment = {**os.environ, "LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"}
            words = output_of("sh", "-c", 'man --warnings -E UTF-8 -l -Tutf8 -Z "$1" >/dev/null',
                              "man", self.installed(page), env=environment)
            self.assertEqual(words, "", page)

    def test_debian_package(self):
        told = words_of("lintian", "--allow-root", "--pedantic", self.package).splitlines()
        faults = [line for line in told if not line.startswith(f"W: karvenis: {NO_GOOD_METAINFO} ")]
        self.assertEqual(faults, [])


class MenuEntry(PackageCase):
    def test_it_starts_the_program_in_a_folder_of_the_user(self):
        screen = Screen()
        self.addCleanup(screen.close)
        silence = socket.socket(socket.AF_UNIX)  # a sound server that never answers
        self.addCleanup(silence.close)
        silence.bind(os.path.join(screen.home, "silence"))
        silence.listen()
        environment = {**screen.environment, "PULSE_SERVER": "unix:" + silence.getsockname(),
                       "PATH": os.path.join(self.root, "usr/bin") + ":/usr/bin:/bin"}
        entry = self.installed("share/applications/karvenis.desktop")
        subprocess.run(["gio", "launch", entry], env=environment, cwd="/", check=True, timeout=60,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        (process,) = wait_for(lambda: reading.programs(screen.bus), "the program")
        self.addCleanup(os.kill, process, signal.SIGTERM)
        program = reading.programs(screen.bus)[process]
        wait_for(lambda: [window.name for window in program.children] == [STANDARD_TITLE],
                 "the main window")
        self.assertEqual(os.readlink(f"/proc/{process}/cwd"),
                         os.path.join(screen.home, "KARVENIS"))
        self.assertEqual(os.readlink(f"/proc/{process}/exe"),
                         os.path.join(self.root, "usr/bin/karvenis"))
        self.assertEqual(self.player_of(process, program.children[0]),
                         os.path.join(self.root, "usr/libexec/karvenis/karvenis-bell"))

    @staticmethod
    def player_of(process, main):
        """The program that plays the beeps, which is started by the first one: a refusal's."""
        main.find("radio button", "Listeden Çek").press()
        main.find("push button", "Kolon").press()

        def player():
            with open(f"/proc/{process}/task/{process}/children", encoding="ascii") as file:
                started = [os.readlink(f"/proc/{child}/exe") for child in file.read().split()]
            return next((path for path in started if path.endswith("karvenis-bell")), None)
        return wait_for(player, "the player")


if __name__ == "__main__":
    unittest.main(verbosity=2)
