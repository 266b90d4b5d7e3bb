#include "working_place.h"

#include "device_profiles.h"
#include "message_route.h"
#include "program.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <csignal>
#include <cstdio>

#include <sys/prctl.h>

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

// The simulator ends with the program, even when the program is killed outright.
class child_process : public QProcess {
protected:
    void setupChildProcess() override { ::prctl(PR_SET_PDEATHSIG, SIGTERM); }
};

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
    const QString program = simulator_program();
    simulator_ = std::make_unique<child_process>();
    simulator_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The simulator prints the path of its line first, once the line is there.
    QEventLoop waiting;
    QTimer::singleShot(simulator_start_ms, &waiting, &QEventLoop::quit);
    QObject::connect(simulator_.get(), &QProcess::readyReadStandardOutput, &waiting, [&] {
        if (simulator_->canReadLine()) {
            waiting.quit();
        }
    });
    QObject::connect(simulator_.get(), &QProcess::errorOccurred, &waiting, &QEventLoop::quit);
    QObject::connect(simulator_.get(),
                     QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &waiting,
                     &QEventLoop::quit);
    simulator_->start(program, {QStringLiteral("--every-type")});
    waiting.exec();
    const QString line = simulator_->canReadLine()
                             ? QString::fromLocal8Bit(simulator_->readLine()).trimmed()
                             : QString();
    if (line.isEmpty()) {
        *error = QCoreApplication::translate("program", "The simulator %1 did not start: %2.")
                     .arg(program, simulator_->state() == QProcess::NotRunning
                                       ? simulator_->errorString()
                                       : QStringLiteral("no answer"));
        return false;
    }

    // The same table the simulator made: every modelled type at CAN IDs 1, 2, ... in type order.
    QDir().mkpath(dir_->filePath(QStringLiteral("configs")));
    QSettings ini(dir_->filePath(QStringLiteral("configs/config.ini")), QSettings::IniFormat);
    const std::vector<int> types = sim::modelled_types();
    ini.setValue(QStringLiteral("prev_port"), line);
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
    if (simulator_ && simulator_->state() != QProcess::NotRunning) {
        simulator_->terminate();  // SIGTERM: the simulator closes its line and exits
        if (!simulator_->waitForFinished(3000)) {
            simulator_->kill();
            simulator_->waitForFinished(1000);
        }
    }
}

bool enter_user_working_dir(QString *error) {
    return enter(user_working_dir(), error);
}

void tell_start_failure(const QString &why) {
    std::fprintf(stderr, "lumivox: %s\n", qPrintable(why));
    if (qobject_cast<QApplication *>(QCoreApplication::instance())) {
        inform(nullptr, QStringLiteral("Lumivox"), why);
    }
}

int start_demo(const program_options &options, demo_run &demo) {
    if (!options.demo) {
        return -1;
    }
    QString error;
    if (!demo.start(&error)) {
        tell_start_failure(error);
        return 1;
    }
    std::fprintf(stderr, "%s\n",
                 qPrintable(QCoreApplication::translate("program",
                                                        "Demo: simulated devices, working in %1")
                                .arg(demo.dir())));
    return -1;
}
