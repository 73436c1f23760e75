// SPDX-License-Identifier: GPL-3.0-or-later
/// A document whose steps are written into a folder of the test's own.
#pragma once
#include "support/DocumentFixture.h"
#include "support/TemporaryFolder.h"
#include "undo/SnapshotStore.h"
#include <filesystem>
#include <fstream>

namespace zp::test
{

class HistoryTest : public DocumentTest
{
protected:
    using Bytes = std::vector<std::uint8_t>;

    void SetUp() override
    {
        takeSounds();
        takeLogLines();
    }
    void TearDown() override
    {
        if (document) settle();
        canvas.reset();
        document.reset();
        SnapshotStore::shared().remove();
    }

    std::filesystem::path folder() const { return temporary / "Zelpane Undo Support"; }
    bool exists(const std::string& name) const { return std::filesystem::exists(folder() / name); }
    static Bytes bytes(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return Bytes(std::istreambuf_iterator<char>(file), {});
    }
    /// One change of the whole picture and its step.
    void change(int alpha, int grey)
    {
        fillImage(word(alpha, grey, grey, grey));
        perform("takeSnapshot");
        settle();
    }

    const TemporaryFolder own;
    const std::filesystem::path temporary = own.path();
    const TemporaryVariable variable{"ZELPANE_TMP", temporary};
};

} // namespace zp::test
