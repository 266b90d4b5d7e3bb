#!/usr/bin/python3
"""A CW laser-diode driver on the Lumivox bus as a PyMeasure instrument.

Lumivox serves every device of its bus as instrument commands over TCP (lumivox --listen 5025).
This class drives one CW driver (model VTR-CW-1800, type 14) by its CAN id; the other device
types work the same way with their own keys (ask DEV<n>:READ:LIST? and DEV<n>:SETP:LIST?).

Debian 12: apt-get install python3-pymeasure python3-pyvisa python3-pyvisa-py

    python3 examples/lumivox_cw_driver.py 127.0.0.1 5025 1    # host, port, CAN id: a short ramp
"""
import sys
import time

from pymeasure.instruments import Instrument
from pymeasure.instruments.validators import truncated_range


class LumivoxCwDriver(Instrument):
    """One CW driver, by the CAN id it has in the Lumivox device table.

    Writes (set-points, emission) need remote writes allowed in Lumivox: its --remote-control
    option or the switch in its status bar.
    """

    current = Instrument.measurement(
        "DEV{id}:READ? current", "Drive current the driver reports, in mA (NaN before the first).")
    temperature = Instrument.measurement(
        "DEV{id}:READ? temperature", "Diode temperature the driver reports, in °C.")
    power = Instrument.measurement(
        "DEV{id}:READ? power", "Optical power the driver reports, in mW.")
    drive = Instrument.control(
        "DEV{id}:SETP? drive", "DEV{id}:SETP drive,%g",
        "Drive set-point: the current in mA (the power in mW in constant-power mode), sent as "
        "the panel sends it after Enter and Yes; outside the panel's limits nothing is sent.")
    temperature_setpoint = Instrument.control(
        "DEV{id}:SETP? temperature", "DEV{id}:SETP temperature,%g",
        "Temperature set-point in °C.", validator=truncated_range, values=[15, 35])
    emission = Instrument.control(
        "DEV{id}:OUTP?", "DEV{id}:OUTP %d", "Emission on (True) or off (False).",
        cast=int, get_process=bool, set_process=int)

    def __init__(self, resource, can_id, **kwargs):
        self.can_id = can_id
        kwargs.setdefault("visa_library", "@py")  # PyVISA-py: no vendor VISA library needed
        super().__init__(resource, f"Lumivox CW driver {can_id}", includeSCPI=False,
                         read_termination="\n", write_termination="\n", timeout=5000, **kwargs)
        # Units such as °C come in UTF-8.
        self.adapter.connection.encoding = "utf-8"

    # Every command names the device by its CAN id.
    def write(self, command):
        super().write(command.replace("{id}", str(self.can_id)))

    def values(self, command, **kwargs):
        return super().values(command.replace("{id}", str(self.can_id)), **kwargs)

    def check_errors(self):
        """The errors queued for this connection, oldest first, as (code, text)."""
        errors = []
        while True:
            code, text = self.ask("SYST:ERR?").strip().split(",", 1)
            if int(code) == 0:
                return errors
            errors.append((int(code), text.strip('"')))

    def wait_for_current(self, target, tolerance=0.05, timeout=30.0):
        """Waits until the reported current is within `tolerance` (relative) of `target` mA."""
        end = time.monotonic() + timeout
        while time.monotonic() < end:
            if abs(self.current - target) <= tolerance * max(abs(target), 1.0):
                return True
            time.sleep(0.1)
        return False


if __name__ == "__main__":
    host, port, can_id = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    driver = LumivoxCwDriver(f"TCPIP::{host}::{port}::SOCKET", can_id)
    print(driver.ask("*IDN?").strip())
    print(f"temperature {driver.temperature} °C")
    driver.drive = 0
    driver.emission = True
    for milliamps in range(0, 101, 20):
        driver.drive = milliamps
        driver.wait_for_current(milliamps)
        print(f"{milliamps:5} mA set, {driver.current} mA, {driver.power} mW")
    driver.emission = False
    print("errors:", driver.check_errors() or "none")
