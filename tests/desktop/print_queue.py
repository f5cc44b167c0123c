"""A print server of the tests' own, with one queue: the machine's queues are never touched."""

import contextlib
import getpass
import grp
import os
import shutil
import stat
import subprocess
import tempfile

from screen import start, stop, wait_for

SERVER = "/usr/sbin/cupsd"
QUEUE = "PDF"

# Runs as whoever runs the tests; takes jobs from its own socket only and asks nobody who they are.
_DAEMON = """\
Listen {home}/socket
Browsing Off
BrowseLocalProtocols none
DefaultAuthType None
WebInterface No
MaxJobTime 600
LimitRequestBody {largest}
LogLevel info
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

# What stands for the device: it keeps each job as a file, and the job's title and options as another.
# It takes as long as there is a file "slow".
_DEVICE = """\
#!/bin/sh
[ $# -gt 0 ] || exit 0
printf '%s\\n' "$3" "$5" >"{home}/printed/$1.words"
while [ -e "{home}/slow" ]; do sleep 0.1; done
cat "${{6:--}}" >"{home}/printed/$1.pdf"
"""

_FILES = """\
ServerRoot {home}
ServerBin {home}/programs
DataDir /usr/share/cups
StateDir {home}/state
CacheDir {home}/cache
RequestRoot {home}/spool
TempDir {home}/spool/tmp
AccessLog {home}/access_log
ErrorLog {home}/error_log
PageLog {home}/page_log
Printcap {home}/printcap
SystemGroup {group}
{user}
"""


# A printer that takes PDF as it is, on papers of given sizes.
_PRINTER = """\
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEP.PPD"
*Product: "(Keep)"
*Manufacturer: "Keep"
*ModelName: "Keep"
*ShortNickName: "Keep"
*NickName: "Keep"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*cupsFilter2: "application/pdf application/pdf 0 -"
*DefaultFont: Courier
*OpenUI *PageSize: PickOne
*DefaultPageSize: {default}
{sizes}*CloseUI: *PageSize
*DefaultImageableArea: {default}
{areas}*DefaultPaperDimension: {default}
{dimensions}"""


def _printer(papers):
    """The description of a printer with these papers: name, size and printable area in points."""
    return _PRINTER.format(
        default=papers[0][0],
        sizes="".join(f'*PageSize {name}: ""\n' for name, _, _ in papers),
        areas="".join(f'*ImageableArea {name}: "{area}"\n' for name, _, area in papers),
        dimensions="".join(f'*PaperDimension {name}: "{size}"\n' for name, size, _ in papers))


class PrintQueue:
    """A server whose default queue keeps each job as a file, or that has no queue at all.
    `papers` are those of its printer; without them it says nothing about its paper. A request of
    more than `largest` is refused. `environment` leads a program to it."""

    def __init__(self, has_queue=True, papers=None, largest="0"):
        self.home = tempfile.mkdtemp(prefix="karvenis-print-")
        os.chmod(self.home, 0o755)
        self.environment = {"CUPS_SERVER": os.path.join(self.home, "socket"),
                            "CUPS_SERVERROOT": self.home}  # for the users' choices
        self._server = None
        try:
            self._serve(largest)
            if has_queue:
                self._run("lpadmin", "-p", QUEUE, "-E", "-v", "keep:/", *self._driver(papers))
                self._run("lpadmin", "-d", QUEUE)
        except BaseException:
            self.close()
            raise

    def _driver(self, papers):
        if papers is None:
            return "-m", "raw"
        path = os.path.join(self.home, "printer.ppd")
        with open(path, "w", encoding="utf-8") as file:
            file.write(_printer(papers))
        return "-P", path

    def _serve(self, largest):
        for folder in ("state/certs", "cache", "spool/tmp", "programs/backend", "printed"):
            os.makedirs(os.path.join(self.home, folder))
        os.symlink("/usr/lib/cups/daemon", os.path.join(self.home, "programs/daemon"))
        device = os.path.join(self.home, "programs/backend/keep")
        with open(device, "w", encoding="utf-8") as file:
            file.write(_DEVICE.format(home=self.home))
        os.chmod(device, 0o700)  # not for everybody: the server then runs it as itself
        group = grp.getgrgid(os.getgid()).gr_name
        user = "" if os.getuid() == 0 else f"User {getpass.getuser()}\nGroup {group}"
        paths = []
        for name, text in (("cupsd.conf", _DAEMON), ("cups-files.conf", _FILES)):
            paths.append(os.path.join(self.home, name))
            with open(paths[-1], "w", encoding="utf-8") as file:
                file.write(text.format(home=self.home, group=group, user=user,
                                       largest=largest))
            os.chmod(paths[-1], 0o640)
        with open(os.path.join(self.home, "words"), "wb") as words:
            self._server = start([SERVER, "-f", "-c", paths[0], "-s", paths[1]],
                                 stdout=words, stderr=words)
        wait_for(lambda: self._is_socket() and "is running" in self._ask("lpstat", "-r"),
                 "the print server")

    def _is_socket(self):
        path = self.environment["CUPS_SERVER"]
        return os.path.exists(path) and stat.S_ISSOCK(os.stat(path).st_mode)

    def _ask(self, *command):
        done = subprocess.run(command, env={**os.environ, **self.environment, "LC_ALL": "C"},
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              check=False, timeout=30)
        return done.stdout + done.stderr

    def _run(self, *command):
        search = os.environ.get("PATH", "") + ":/usr/sbin"  # where a user's PATH does not lead
        subprocess.run(command,
                       env={**os.environ, **self.environment, "PATH": search, "LC_ALL": "C"},
                       stdin=subprocess.DEVNULL, capture_output=True, check=True, timeout=30)

    def choose_paper(self, name):
        """From now on this is the queue's default paper."""
        self._run("lpadmin", "-p", QUEUE, "-o", f"PageSize={name}")

    def choose_for_user(self, option):
        """From now on the user prints with this option, whatever the queue's own defaults are."""
        with open(os.path.join(self.home, "lpoptions"), "w", encoding="utf-8") as file:
            file.write(f"Default {QUEUE} {option}\n")

    @contextlib.contextmanager
    def at_work(self):
        """Meanwhile the device works at a job of somebody else."""
        slow = os.path.join(self.home, "slow")
        with open(slow, "w", encoding="utf-8") as file:
            file.write("any document")
        self._run("lp", "-d", QUEUE, "-o", "raw", slow)
        wait_for(lambda: self.documents() == ["1.words"], "the job to begin")
        try:
            yield
        finally:
            os.unlink(slow)

    def refuse(self):
        """From now on the queue takes no job."""
        self._run("cupsreject", QUEUE)

    def accept(self):
        """From now on it takes them again."""
        self._run("cupsaccept", QUEUE)

    def stop_serving(self):
        """From now on nobody answers."""
        stop(self._server)

    def printed(self, job=1):
        """The path of the PDF that has come of a job, counted from 1."""
        wait_for(lambda: f"{QUEUE}-{job} " in self._ask("lpstat", "-W", "completed", "-o"),
                 f"job {job} to be printed")
        return os.path.join(self.home, "printed", f"{job}.pdf")

    def words(self, job):
        """Title and options of a job that has been printed."""
        with open(os.path.join(self.home, "printed", f"{job}.words"), encoding="utf-8") as file:
            return file.read().splitlines()

    def jobs(self, which="all"):
        """How many jobs the queue knows of: "all", "completed" (also in vain) or "not-completed"."""
        return len(self._ask("lpstat", "-W", which, "-o").splitlines())

    def documents(self):
        """The names of the documents that were printed."""
        return os.listdir(os.path.join(self.home, "printed"))

    def close(self):
        stop(self._server)
        shutil.rmtree(self.home, ignore_errors=True)
