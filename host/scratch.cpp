#include "scratch.h"
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <csignal>
#include <cstdlib>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace {

// The thread that works; it has to hold still while its files are removed.
pthread_t worker;

void holdStill(int)
{
    for (;;)
        pause();
}

void removeTree(const QByteArray &folder)
{
    if (!folder.isEmpty())
        QDir(QFile::decodeName(folder)).removeRecursively();
}

QByteArray &folderOfRun()
{
    static QByteArray folder;
    return folder;
}

void waitForTheEnd(sigset_t signals)
{
    int which = 0;
    if (sigwait(&signals, &which) != 0)
        return;
    struct sigaction still = {};
    still.sa_handler = holdStill;
    sigaction(SIGUSR1, &still, nullptr);
    pthread_kill(worker, SIGUSR1);
    removeTree(folderOfRun());
    // Whoever started the program is told by which signal it ended.
    std::signal(which, SIG_DFL);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    raise(which);
    _exit(128 + which);
}
}

Scratch::Scratch()
{
    worker = pthread_self();
    sigset_t signals;
    sigemptyset(&signals);
    for (const int which : {SIGINT, SIGTERM, SIGHUP}) {
        // A shell that starts a job in the background has it ignore the keyboard.
        struct sigaction now = {};
        if (sigaction(which, nullptr, &now) == 0 && now.sa_handler != SIG_IGN)
            sigaddset(&signals, which);
    }
    // A signal that comes before the folder has its name waits for the thread.
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    QByteArray pattern = QFile::encodeName(QDir::tempPath()) + "/kwgantt-run-XXXXXX";
    // Without a folder whoever needs one will tell.
    if (mkdtemp(pattern.data())) {
        folderOfRun() = pattern;
        qputenv("TMPDIR", pattern);
        // Qt makes a folder of its own where the system gives none.
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
            qputenv("XDG_RUNTIME_DIR", pattern);
    }
    std::thread(waitForTheEnd, signals).detach();
}

Scratch::~Scratch()
{
    removeTree(folderOfRun());
}
