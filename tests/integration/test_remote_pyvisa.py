#!/usr/bin/python3
"""The lumivox program run as on a bench computer without a desktop: --headless, no display,
the device simulator on a pseudo-terminal, and a real PyVISA client (through the PyMeasure example
in examples/) that lists the devices, reads a temperature and ramps a current. Then SIGTERM: the
program ends with exit code 0 and the configuration file saved.

    test_remote_pyvisa.py <lumivox> <lumivox-sim> <examples directory>
"""
import os
import re
import select
import signal
import subprocess
import sys
import tempfile
import time

import pyvisa


def fail(why):
    print("FAIL:", why)
    sys.exit(1)


def read_line(stream, pattern, timeout):
    """The first line of `stream` matching `pattern` within `timeout` seconds; the lines read."""
    seen = []
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        ready, _, _ = select.select([stream], [], [], 0.2)
        if ready:
            line = stream.readline().decode("utf-8", "replace")
            if not line:
                break
            seen.append(line)
            found = re.search(pattern, line)
            if found:
                return found, seen
    return None, seen


def wait_until(what, timeout=20.0):
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        value = what()
        if value:
            return value
        time.sleep(0.1)
    return None


def main():
    lumivox, simulator, examples = sys.argv[1:4]
    sys.path.insert(0, examples)
    from lumivox_cw_driver import LumivoxCwDriver

    work = tempfile.TemporaryDirectory(prefix="lumivox-pyvisa-")
    home = os.path.join(work.name, "home")
    env = {key: value for key, value in os.environ.items()
           if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    env.update(HOME=home, XDG_CONFIG_HOME=os.path.join(home, ".config"))

    sim = subprocess.Popen([simulator, "--device", "1:14", "--device", "4:4"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=env)
    program = None
    try:
        found, _ = read_line(sim.stdout, r"^(/\S+)", 10)
        if not found:
            fail("the simulator gave no pseudo-terminal")
        os.makedirs(os.path.join(work.name, "configs"))
        config = os.path.join(work.name, "configs", "config.ini")
        with open(config, "w") as ini:
            ini.write("[General]\nprev_port=%s\nmini_usb_mode=false\nautoconnection_mode=true\n"
                      "device_count=3\ndevice_0=1\nname_device_0=Bench CW\ndevice_1=4\n"
                      "name_device_1=Oven\ndevice_2=9\nname_device_2=Spare\n" % found.group(1))

        program = subprocess.Popen(
            [lumivox, "--headless", "--listen", "127.0.0.1:0", "--remote-control"],
            cwd=work.name, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        found, seen = read_line(program.stderr, r"listening at 127\.0\.0\.1:(\d+)", 20)
        if not found:
            fail("no command server: " + "".join(seen))
        port = int(found.group(1))
        resource = f"TCPIP::127.0.0.1::{port}::SOCKET"

        manager = pyvisa.ResourceManager("@py")
        inst = manager.open_resource(resource, read_termination="\n", write_termination="\n",
                                     encoding="utf-8", timeout=5000)
        if not inst.query("*IDN?").startswith("Lumivox,"):
            fail("identity")
        if inst.query("DEV:LIST?") != "1,4,9":
            fail("device list")
        if not wait_until(lambda: inst.query("DEV1:IDN?").endswith(",14,FOUND")
                          and inst.query("DEV4:IDN?").endswith(",4,FOUND")):
            fail("devices not found: " + inst.query("DEV1:IDN?"))
        if not inst.query("DEV9:IDN?").endswith(",-1,UNKNOWN"):
            fail("absent device")
        if '"temperature","°C"' not in inst.query("DEV4:READ:LIST?"):
            fail("the heater's readings")
        oven = wait_until(lambda: inst.query_ascii_values("DEV4:READ? temperature")[0] > 0)
        if not oven:
            fail("no heater temperature")

        driver = LumivoxCwDriver(resource, 1)
        if not wait_until(lambda: 10 < driver.temperature < 40):
            fail("no driver temperature")
        # The panel loads its set-points from the device once every configuration row is known.
        if not wait_until(lambda: "NAN" not in inst.query("DEV1:PAR:LIST?")):
            fail("the configuration was not read")
        driver.drive = 0
        driver.emission = True
        for milliamps in (25, 50, 100):
            driver.drive = milliamps
            if driver.drive != milliamps:
                fail("set-point %s: %s" % (milliamps, driver.drive))
            if not driver.wait_for_current(milliamps):
                fail("current did not follow %s mA: %s" % (milliamps, driver.current))
        driver.emission = False
        if not wait_until(lambda: driver.emission is False):
            fail("emission stays on")
        driver.drive = 99999  # beyond the panel's limit: refused, nothing sent
        errors = driver.check_errors()
        if [code for code, _ in errors] != [-222] or driver.drive != 100:
            fail("a set-point out of range: %s %s" % (errors, driver.drive))
        inst.close()
        driver.adapter.connection.close()

        os.remove(config)
        program.send_signal(signal.SIGTERM)
        try:
            code = program.wait(20)
        except subprocess.TimeoutExpired:
            fail("the program did not end on SIGTERM")
        errors = program.stderr.read().decode("utf-8", "replace")
        if code != 0 or "QThread: Destroyed" in errors:
            fail("exit code %s: %s" % (code, errors[-2000:]))
        with open(config) as ini:
            saved = ini.read()
        if "device_count=3" not in saved or "name_device_2=Spare" not in saved:
            fail("configuration not saved: " + saved)
        remembered = os.path.join(home, ".config", "lumivox", "lumivox.ini")
        with open(remembered) as ini:
            settings = ini.read()
        if "listen=127.0.0.1:0" not in settings or "writes_allowed=true" not in settings:
            fail("options not remembered: " + settings)
        print("PASS")
    finally:
        for process in (program, sim):
            if process and process.poll() is None:
                process.kill()
                process.wait()


if __name__ == "__main__":
    main()
