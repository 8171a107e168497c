#ifndef PROCESSLIMITS_H
#define PROCESSLIMITS_H

#include <csignal>

#include <QtGlobal>

#include <sys/resource.h>
#include <unistd.h>

/// Prevents the process from opening files, by setting its limit to zero while an object of this
/// class exists.
class NoFileCanBeOpened
{
public:
    NoFileCanBeOpened()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit none = m_before;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoFileCanBeOpened() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    Q_DISABLE_COPY(NoFileCanBeOpened)
    rlimit m_before;
};

/// Runs the process as an ordinary user while an object of this class exists, because file
/// permissions do not restrict root.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_wasRoot(geteuid() == 0)
    {
        if (m_wasRoot && seteuid(65534) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot && seteuid(0) != 0)
            qFatal("cannot become root again");
    }

private:
    Q_DISABLE_COPY(OrdinaryUser)

    bool m_wasRoot;
};

/// Limits the size of files while an object of this class exists, so that writing fails as if the
/// disk were full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes) : m_oldHandler(signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        struct rlimit limit = m_oldLimit;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        signal(SIGXFSZ, m_oldHandler);
    }

private:
    Q_DISABLE_COPY(FullDisk)

    sighandler_t m_oldHandler;
    struct rlimit m_oldLimit;
};

#endif
