#pragma once

class QSettings;
class main_window;
class publisher;
struct program_options;

// Publishes what the window's devices report to the broker of `options.mqtt_url` through `pub`.
// The user name, password and certificate authority file come from the environment
// (LUMIVOX_MQTT_USER, LUMIVOX_MQTT_PASSWORD) or from `remembered` (mqtt/user, mqtt/password,
// mqtt/ca_file), never from the command line. The status bar says whether the broker is connected;
// a URL that cannot be read, a refused login or a broker that cannot be reached is also said in a
// box that does not wait for an answer (once for each reason) and on standard error: polling goes
// on, and the publisher keeps trying.
void publish_window(main_window &window, publisher &pub, const program_options &options,
                    const QSettings &remembered);
