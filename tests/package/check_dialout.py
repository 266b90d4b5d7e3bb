#!/usr/bin/python3
"""A serial port the user may not open: Lumivox must say that the user belongs in the dialout group.

    check_dialout.py LUMIVOX [USER]

Makes a pseudo-terminal owned by root:dialout with mode 0660, as udev leaves a USB serial adapter,
and starts LUMIVOX as USER (default: nobody, who is not in dialout) on the offscreen platform, in
a working directory of its own whose configuration connects to that port automatically, with its
own HOME and XDG_CONFIG_HOME. Passes when the program's warning names the port and tells how to
join the group, and the program then ends cleanly on SIGTERM. Needs root (to hand the port to
dialout and to become USER).
"""
import grp
import os
import pwd
import select
import signal
import subprocess
import sys
import tempfile
import time


def main():
    program = os.path.abspath(sys.argv[1])
    user = sys.argv[2] if len(sys.argv) > 2 else "nobody"
    if os.geteuid() != 0:
        print("check_dialout: needs root", file=sys.stderr)
        return 2
    account = pwd.getpwnam(user)
    dialout = grp.getgrnam("dialout").gr_gid
    if dialout in os.getgrouplist(user, account.pw_gid):
        print(f"check_dialout: {user} is in dialout; pick a user who is not", file=sys.stderr)
        return 2

    master, slave = os.openpty()
    port = os.ttyname(slave)
    os.chown(port, 0, dialout)
    os.chmod(port, 0o660)

    with tempfile.TemporaryDirectory() as top:
        os.chmod(top, 0o755)
        work = os.path.join(top, "work")
        os.makedirs(os.path.join(work, "configs"))
        with open(os.path.join(work, "configs", "config.ini"), "w") as ini:
            ini.write(f"[General]\nprev_port={port}\nmini_usb_mode=false\n"
                      "autoconnection_mode=true\ndevice_count=1\ndevice_0=1\nname_device_0=A\n")
        for path in (work, os.path.join(work, "configs"),
                     os.path.join(work, "configs", "config.ini")):
            os.chown(path, account.pw_uid, account.pw_gid)
        env = {
            "PATH": "/usr/bin:/bin",
            "HOME": os.path.join(work, "home"),
            "XDG_CONFIG_HOME": os.path.join(work, "home", ".config"),
            "XDG_RUNTIME_DIR": os.path.join(work, "runtime"),
            "QT_QPA_PLATFORM": "offscreen",
            "LANG": "C.UTF-8",
        }
        started = subprocess.Popen(
            ["setpriv", f"--reuid={account.pw_uid}", f"--regid={account.pw_gid}",
             "--clear-groups", "--", program],
            cwd=work, env=env, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE)
        said = b""
        deadline = time.monotonic() + 20
        while b"dialout" not in said and time.monotonic() < deadline:
            ready, _, _ = select.select([started.stderr], [], [], 0.5)
            if ready:
                chunk = os.read(started.stderr.fileno(), 65536)
                if not chunk:
                    break
                said += chunk
        started.send_signal(signal.SIGTERM)
        try:
            said += started.communicate(timeout=20)[1]
        except subprocess.TimeoutExpired:
            started.kill()
            said += started.communicate()[1]
            print("check_dialout: the program did not end on SIGTERM", file=sys.stderr)
            return 1
    os.close(master)
    os.close(slave)

    text = said.decode(errors="replace")
    lines = [line for line in text.splitlines() if "dialout" in line]
    wanted = [port, "permission denied", "sudo adduser $USER dialout", "log in again"]
    if len(lines) != 1 or not all(word in lines[0] for word in wanted):
        print(f"check_dialout: expected one warning with {wanted}; the program said:\n{text}",
              file=sys.stderr)
        return 1
    if started.returncode != 0:
        print(f"check_dialout: exit code {started.returncode}:\n{text}", file=sys.stderr)
        return 1
    print(f"check_dialout: as {user}: {lines[0]}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
