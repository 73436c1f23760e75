// SPDX-License-Identifier: GPL-3.0-or-later
/// What the system says of a running program: what long runs must not let grow.
#pragma once
#include <QDir>
#include <QFile>
#include <unistd.h>

namespace zp::test
{

/// Sanitizers keep what was released, and their own notes.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool kMemoryTells = false;
#else
inline constexpr bool kMemoryTells = true;
#endif

/// Memory that is in use, in bytes; 0 when the process is gone.
inline qint64 residentBytes(qint64 process = ::getpid())
{
    QFile file(QString("/proc/%1/statm").arg(process));
    const QList<QByteArray> pages = file.open(QFile::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
    return pages.size() > 1 ? pages[1].toLongLong() * ::sysconf(_SC_PAGESIZE) : 0;
}

inline qsizetype openFiles(qint64 process)
{
    return QDir(QString("/proc/%1/fd").arg(process))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

/// The decoders that @p program has started and that run.
inline QList<pid_t> decodersOf(qint64 program)
{
    QList<pid_t> all;
    for (const QString& process : QDir("/proc").entryList(QDir::Dirs)) {
        QFile status("/proc/" + process + "/stat"), words("/proc/" + process + "/cmdline");
        if (!process[0].isDigit() || !status.open(QFile::ReadOnly) || !words.open(QFile::ReadOnly)) continue;
        const QByteArray fields = status.readAll();
        const QList<QByteArray> behindName = fields.mid(fields.lastIndexOf(')') + 2).split(' ');
        if (behindName.size() > 1 && behindName[1].toLongLong() == program &&
            words.readAll().split('\0').contains("--decode"))
            all << process.toInt();
    }
    return all;
}

} // namespace zp::test
