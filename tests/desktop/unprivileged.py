"""Sessions that must not run as root: those with a sound server or a screen reader."""

import atexit
import os
import pwd
import shutil
import tempfile


def leave_root(*programs):
    """As root, this process goes on as a user that every Debian has, in a folder of its own with
    copies of the programs, whose paths it returns. Else nothing changes."""
    if os.geteuid() != 0:
        return programs
    user = pwd.getpwnam("nobody")
    folder = tempfile.mkdtemp(prefix="karvenis-nobody-", dir="/tmp")
    copies = tuple(shutil.copy(program, folder) for program in programs)
    os.chown(folder, user.pw_uid, user.pw_gid)
    os.chdir(folder)
    os.setgroups([])
    os.setgid(user.pw_gid)
    os.setuid(user.pw_uid)
    tempfile.tempdir = folder
    atexit.register(shutil.rmtree, folder, ignore_errors=True)
    return copies
