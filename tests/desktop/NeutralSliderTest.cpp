// SPDX-License-Identifier: GPL-3.0-or-later
/// A slider that is filled from the value that changes nothing.
#include "desktop/NeutralSlider.h"
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

namespace
{

class NeutralSliderTest : public testing::Test
{
protected:
    NeutralSliderTest()
    {
        slider.setRange(-100, 100);
        slider.resize(240, 28);
        slider.show();
    }
    /// Whether the groove is filled there.
    bool isFilled(int x)
    {
        const QImage shown = slider.grab().toImage();
        return shown.pixelColor(x, slider.height() / 2) == slider.palette().color(QPalette::Highlight);
    }

    NeutralSlider slider;
};

TEST_F(NeutralSliderTest, IsFilledBetweenTheNeutralValueAndItsOwn)
{
    struct Case {
        int neutral, value, inside, outside;
    };
    for (const Case& c : {Case{0, 60, 30, -30}, {0, -60, -30, 30}, {-50, 50, 0, -80}, {0, 0, 0, 40}}) {
        slider.setNeutral(c.neutral);
        slider.setValue(c.value);
        EXPECT_EQ(isFilled(slider.positionOf(c.inside)), c.neutral != c.value) << c.neutral << " " << c.value;
        EXPECT_FALSE(isFilled(slider.positionOf(c.outside))) << c.neutral << " " << c.value;
    }
}

TEST_F(NeutralSliderTest, ADoubleClickBringsTheNeutralValueBack)
{
    slider.setNeutral(10);
    slider.setValue(-70);
    QTest::mouseDClick(&slider, Qt::LeftButton, {}, QPoint(200, 14));
    EXPECT_EQ(slider.value(), 10);
}

} // namespace
