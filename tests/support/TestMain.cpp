// SPDX-License-Identifier: GPL-3.0-or-later
/// Starts every test program in a home folder of its own, so that tests run side by side and leave nothing behind.
#include "support/TemporaryFolder.h"
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#endif

namespace
{

class TestHome
{
public:
    TestHome()
    {
        const std::filesystem::path& path = mFolder.path();
        for (const char* folder : {"home", "tmp", "runtime"}) std::filesystem::create_directory(path / folder);
        std::filesystem::permissions(path / "runtime", std::filesystem::perms::owner_all);
        setenv("HOME", (path / "home").c_str(), 1);
        setenv("ZELPANE_TMP", (path / "tmp").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", (path / "runtime").c_str(), 1);
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "ZELPANE_BUNDLE"})
            unsetenv(variable);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("ZELPANE_RESOURCES", ZP_RESOURCES_DIR, 0);
    }

private:
    zp::test::TemporaryFolder mFolder;
};

} // namespace

int main(int argc, char** argv)
{
    // Outlives every other static object of a function: the settings write when they end.
    static const TestHome home;
    testing::InitGoogleTest(&argc, argv);
#ifdef QT_WIDGETS_LIB
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
#endif
    return RUN_ALL_TESTS();
}
