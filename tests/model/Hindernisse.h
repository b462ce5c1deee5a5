#pragma once

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

/// As long as one of these lives, no file can grow beyond so many bytes: what a full disk does to
/// a program that writes.
class VolleFestplatte
{
public:
    explicit VolleFestplatte(rlim_t bytes)
    {
        m_vorher = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_grenze);
        const rlimit eng = {bytes, m_grenze.rlim_max};
        setrlimit(RLIMIT_FSIZE, &eng);
    }
    ~VolleFestplatte()
    {
        setrlimit(RLIMIT_FSIZE, &m_grenze);
        std::signal(SIGXFSZ, m_vorher);
    }
    VolleFestplatte(const VolleFestplatte &) = delete;
    VolleFestplatte &operator=(const VolleFestplatte &) = delete;

private:
    rlimit m_grenze = {};
    void (*m_vorher)(int) = nullptr;
};

/// As long as one of these lives, permissions hold, also for tests that run as root.
class OhneRechte
{
public:
    OhneRechte() : m_vorher(geteuid())
    {
        constexpr uid_t niemand = 65534;
        if (m_vorher == 0 && seteuid(niemand) != 0) {
            m_gelungen = false;
        }
    }
    ~OhneRechte()
    {
        if (seteuid(m_vorher) != 0) {
            _exit(1);
        }
    }
    OhneRechte(const OhneRechte &) = delete;
    OhneRechte &operator=(const OhneRechte &) = delete;
    bool gelungen() const { return m_gelungen; }

private:
    uid_t m_vorher;
    bool m_gelungen = true;
};
