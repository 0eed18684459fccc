#include "support/ChildProcess.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;

struct Fork {
    pid_t pid;
    int pipe; // the child's end for writing, the parent's for reading
};

Fork ForkWithPipe() {
    std::array<int, 2> ends;
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        qFatal("no pipe");
    std::fflush(nullptr); // or the child would print it a second time
    const pid_t pid = ::fork();
    if (pid < 0)
        qFatal("no fork");
    ::close(ends[pid == 0 ? 0 : 1]);
    return {pid, ends[pid == 0 ? 1 : 0]};
}

int WaitFor(pid_t pid) {
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

void WriteText(const char* file, const QByteArray& text) {
    const int handle = ::open(file, O_WRONLY | O_CLOEXEC);
    if (handle < 0 || ::write(handle, text.constData(), text.size()) != text.size())
        std::perror(file);
    ::close(handle);
}

bool EnterMountNamespace() {
    if (::geteuid() == 0)
        return ::unshare(CLONE_NEWNS) == 0;
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray group = QByteArray::number(::getegid());
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    WriteText("/proc/self/setgroups", "deny");
    WriteText("/proc/self/uid_map", user + " " + user + " 1");
    WriteText("/proc/self/gid_map", group + " " + group + " 1");
    return true;
}

} // namespace

CString RunInChild(const std::function<CString()>& work) {
    const Fork fork = ForkWithPipe();
    if (fork.pid == 0) {
        const QByteArray answer = work().toUtf8();
        const bool told = ::write(fork.pipe, answer.constData(), answer.size()) == answer.size();
        ::_exit(told ? 0 : 1); // not through the parent's ends: they are not this process's business
    }
    QFile pipe;
    pipe.open(fork.pipe, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    const CString answer = QString::fromUtf8(pipe.readAll());
    const int status = WaitFor(fork.pid);
    return status == 0 ? answer : CString("the child ended with status %1").arg(status);
}

HoldingChild::HoldingChild(const std::function<bool()>& work) {
    const Fork fork = ForkWithPipe();
    if (fork.pid == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        const char answer = work() ? 1 : 0;
        if (::write(fork.pipe, &answer, 1) != 1)
            ::_exit(1);
        for (;;)
            ::pause();
    }
    m_pid = fork.pid;
    char answer = 0;
    m_succeeded = ::read(fork.pipe, &answer, 1) == 1 && answer == 1;
    ::close(fork.pipe);
}

HoldingChild::~HoldingChild() {
    Kill();
}

void HoldingChild::Kill() {
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGKILL);
    WaitFor(m_pid);
    m_pid = -1;
}

void BecomePlainUser(const CString& folder) {
    if (::chdir(QFile::encodeName(folder).constData()) != 0)
        ::_exit(101);
    if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setresgid(Nobody, Nobody, Nobody) != 0 ||
                             ::setresuid(Nobody, Nobody, Nobody) != 0))
        ::_exit(102);
    ::prctl(PR_SET_DUMPABLE, 1); // or its own entries under /proc would still be root's
}

bool MakeSmallDisk(const CString& place, qint64 bytes) {
    const QByteArray options = "mode=0700,size=" + QByteArray::number(bytes);
    if (EnterMountNamespace() && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        ::mount("none", QFile::encodeName(place).constData(), "tmpfs", 0, options.constData()) == 0)
        return true;
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    return false;
}
