#pragma once

#include <QString>

#include <sys/stat.h>

/// As long as one of these lives, what the program makes is for its user alone: 0600 for files,
/// 0700 for folders. A dietitian's notes are about people, and others may have an account on the
/// machine.
class EngeRechte
{
public:
    EngeRechte() : m_vorher(umask(S_IRWXG | S_IRWXO)) {}
    ~EngeRechte() { umask(m_vorher); }
    EngeRechte(const EngeRechte &) = delete;
    EngeRechte &operator=(const EngeRechte &) = delete;

private:
    mode_t m_vorher;
};

/// Takes from a file what others than its user may do with it. What its user may not do stays
/// forbidden; what is no file, or not the user's, stays as it is.
void verenge(const QString &path);
