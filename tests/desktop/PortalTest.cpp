// SPDX-License-Identifier: GPL-3.0-or-later
/// Where a portal is taken for one.
#include "desktop/Portal.h"
#include "support/TemporaryFolder.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace
{

TEST(Portal, IsThereWhereTheBusCanStartIt)
{
    const zp::test::TemporaryFolder folder;
    const std::string here = folder.path().string();
    EXPECT_FALSE(zp::hasPortal({}));
    EXPECT_FALSE(zp::hasPortal({here, "/none"}));
    std::filesystem::create_directories(folder.path() / "dbus-1" / "services");
    std::ofstream(folder.path() / "dbus-1" / "services" / "org.freedesktop.portal.Desktop.service")
        << "[D-BUS Service]\n";
    EXPECT_TRUE(zp::hasPortal({"/none", here}));
}

} // namespace
