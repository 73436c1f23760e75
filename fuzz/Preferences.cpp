// SPDX-License-Identifier: GPL-3.0-or-later
/// Files of settings: whatever stands in one, what is set is kept and what was there is as it was.
#include "Fuzz.h"
#include "base/Folders.h"
#include "desktop/Settings.h"
#include <QVariant>
#include <unistd.h>

namespace
{

/// Values are kept as texts and lists of texts: what they convert to counts, not the type that the first version gave.
bool same(const QVariant& a, const QVariant& b)
{
    if (a.typeId() != QMetaType::QStringList) return a.toByteArray() == b.toByteArray();
    return a.toStringList() == b.toStringList() || (a.toStringList().isEmpty() && b.toString().isEmpty());
}

} // namespace

ZP_FUZZ(Preferences, "", bytes)
{
    using namespace zp;
    static const std::string file = [] {
        std::string name = "/dev/shm/zelpane-fuzz-settings-XXXXXX";
        if (::access("/dev/shm", W_OK) != 0) name = "/tmp/zelpane-fuzz-settings-XXXXXX";
        const int handle = ::mkstemp(name.data());
        fuzz::require(handle >= 0, "a file can be made");
        ::close(handle);
        static std::string made;
        made = name;
        std::atexit([] { ::unlink(made.c_str()); });
        return name;
    }();
    const char* const known[] = {"unit", "page", "recentFiles", "shortcuts", "windowPlace"};
    fuzz::require(writeFileSafely(file, bytes.data(), bytes.size()), "the file can be written");
    QVariant before[std::size(known)];
    {
        Settings settings(file);
        for (std::size_t i = 0; i < std::size(known); ++i) before[i] = settings.value(known[i]);
        settings.setValue("fuzzed", int(bytes.size()));
    }
    Settings again(file);
    fuzz::require(again.value("fuzzed").toInt() == int(bytes.size()), "what is set is kept");
    for (std::size_t i = 0; i < std::size(known); ++i)
        fuzz::require(same(before[i], again.value(known[i])), "and the others are as they were");
}
