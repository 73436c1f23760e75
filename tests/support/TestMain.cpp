// SPDX-License-Identifier: GPL-3.0-or-later
/// Starts every test program in a home folder of its own, so that tests run side by side and leave nothing behind.
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>
#ifdef ZP_TEST_QT
#include <QApplication>
#endif

namespace
{

class TestHome
{
public:
    TestHome()
    {
        char name[] = "/tmp/zelpane-test-XXXXXX";
        if (!mkdtemp(name)) std::abort();
        mPath = name;
        for (const char* folder : {"home", "tmp", "runtime"}) std::filesystem::create_directory(mPath / folder);
        std::filesystem::permissions(mPath / "runtime", std::filesystem::perms::owner_all);
        setenv("HOME", (mPath / "home").c_str(), 1);
        setenv("ZELPANE_TMP", (mPath / "tmp").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", (mPath / "runtime").c_str(), 1);
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "ZELPANE_BUNDLE"})
            unsetenv(variable);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("ZELPANE_RESOURCES", ZP_RESOURCES_DIR, 0);
    }
    ~TestHome()
    {
        std::error_code ignored;
        std::filesystem::remove_all(mPath, ignored);
    }
    TestHome(const TestHome&) = delete;
    TestHome& operator=(const TestHome&) = delete;

private:
    std::filesystem::path mPath;
};

} // namespace

int main(int argc, char** argv)
{
    const TestHome home;
    testing::InitGoogleTest(&argc, argv);
#ifdef ZP_TEST_QT
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
#endif
    return RUN_ALL_TESTS();
}
