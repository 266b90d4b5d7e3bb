#include "working_place.h"

#include "device_profiles.h"
#include "message_route.h"
#include "program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <cstdio>

namespace {

// How long the simulator may take to start and show its line.
constexpr int simulator_start_ms = 10000;

bool enter(const QString &dir, QString *error) {
    if (!QDir().mkpath(dir)) {
        *error = QCoreApplication::translate("program", "Cannot make the working directory %1.")
                     .arg(dir);
        return false;
    }
    if (!QDir::setCurrent(dir)) {
        *error = QCoreApplication::translate("program", "Cannot work in the directory %1.")
                     .arg(dir);
        return false;
    }
    return true;
}

}  // namespace

QString user_working_dir() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/lumivox/work");
}

QString demo_run::simulator_program() {
    const QDir here(QCoreApplication::applicationDirPath());
    const QString beside = here.filePath(QStringLiteral("lumivox-sim"));
    const QString build_tree = here.filePath(QStringLiteral("../sim/lumivox-sim"));
    if (!QFileInfo(beside).isExecutable() && QFileInfo(build_tree).isExecutable()) {
        return QDir::cleanPath(build_tree);
    }
    return beside;
}

bool demo_run::start(QString *error) {
    dir_ = std::make_unique<QTemporaryDir>(QDir::temp().filePath(QStringLiteral("lumivox-demo-XXXXXX")));
    if (!dir_->isValid()) {
        *error = QCoreApplication::translate("program", "Cannot make a scratch directory: %1.")
                     .arg(dir_->errorString());
        return false;
    }
    const QString link = dir_->filePath(QStringLiteral("simulated-adapter"));
    const QString program = simulator_program();
    simulator_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    simulator_.start(program, {QStringLiteral("--every-type"), QStringLiteral("--link"), link});
    // The simulator prints its line's path first, once the line (and the link) is there.
    while (simulator_.waitForReadyRead(simulator_start_ms) && !simulator_.canReadLine()) {
    }
    if (!simulator_.canReadLine() || !QFileInfo::exists(link)) {
        *error = QCoreApplication::translate("program", "The simulator %1 did not start: %2.")
                     .arg(program, simulator_.errorString());
        return false;
    }

    // The same table the simulator made: every modelled type at CAN IDs 1, 2, ... in type order.
    QDir().mkpath(dir_->filePath(QStringLiteral("configs")));
    QSettings ini(dir_->filePath(QStringLiteral("configs/config.ini")), QSettings::IniFormat);
    const std::vector<int> types = sim::modelled_types();
    ini.setValue(QStringLiteral("prev_port"), link);
    ini.setValue(QStringLiteral("mini_usb_mode"), false);
    ini.setValue(QStringLiteral("autoconnection_mode"), true);
    ini.setValue(QStringLiteral("device_count"), static_cast<int>(types.size()));
    for (std::size_t i = 0; i < types.size(); ++i) {
        const int id = static_cast<int>(i) + 1;
        ini.setValue(QStringLiteral("device_%1").arg(i), id);
        ini.setValue(QStringLiteral("name_device_%1").arg(i),
                     QStringLiteral("Demo %1 (%2)").arg(id).arg(sim::find_profile(types[i])->model));
    }
    ini.sync();
    if (ini.status() != QSettings::NoError) {
        *error = QCoreApplication::translate("program", "Cannot write the demo's configuration in %1.")
                     .arg(dir_->path());
        return false;
    }
    return enter(dir_->path(), error);
}

demo_run::~demo_run() {
    if (simulator_.state() != QProcess::NotRunning) {
        simulator_.terminate();  // SIGTERM: the simulator removes its link and exits
        if (!simulator_.waitForFinished(3000)) {
            simulator_.kill();
            simulator_.waitForFinished(1000);
        }
    }
}

int enter_working_place(const program_options &options, demo_run &demo) {
    QString error;
    if (options.demo) {
        if (demo.start(&error)) {
            std::fprintf(stderr, "%s\n",
                         qPrintable(QCoreApplication::translate(
                                        "program", "Demo: simulated devices, working in %1")
                                        .arg(demo.dir())));
            return -1;
        }
    } else if (!options.user_dir || enter(user_working_dir(), &error)) {
        return -1;
    }
    std::fprintf(stderr, "lumivox: %s\n", qPrintable(error));
    inform(nullptr, QStringLiteral("Lumivox"), error);
    return 1;
}
