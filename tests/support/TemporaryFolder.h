// SPDX-License-Identifier: GPL-3.0-or-later
/// A folder that lasts as long as its test, and a variable of the environment that does.
#pragma once
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace zp::test
{

/// An empty folder of its own, gone with everything in it in the end.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        char name[] = "/tmp/zelpane-test-XXXXXX";
        if (!mkdtemp(name)) std::abort();
        mPath = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(mPath, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(mPath, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& path() const { return mPath; }

private:
    std::filesystem::path mPath;
};

/// Sets a variable and brings back in the end what it was, whatever was made of it in between.
class TemporaryVariable
{
public:
    TemporaryVariable(const char* name, const std::string& value) : mName(name)
    {
        if (const char* old = std::getenv(name)) mOld = old;
        setenv(name, value.c_str(), 1);
    }
    ~TemporaryVariable()
    {
        if (mOld)
            setenv(mName, mOld->c_str(), 1);
        else
            unsetenv(mName);
    }
    TemporaryVariable(const TemporaryVariable&) = delete;
    TemporaryVariable& operator=(const TemporaryVariable&) = delete;

private:
    const char* mName;
    std::optional<std::string> mOld;
};

} // namespace zp::test
