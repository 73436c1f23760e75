// SPDX-License-Identifier: GPL-3.0-or-later
/// The colour schemes: what must be seen stands out.
#include "app/CommandLine.h"
#include "support/TemporaryFolder.h"
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace
{

/// Light from a colour, 0 to 1, by the definition that contrasts are reckoned with.
double luminance(QColor colour)
{
    const auto linear = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
double contrast(QColor a, QColor b)
{
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

/// How much the rim of the box, where it is strongest, stands out from the window; row by row through the middle.
template <class Box>
double rimContrast(bool enabled)
{
    QWidget window;
    Box box(&window);
    box.setEnabled(enabled);
    box.resize(box.sizeHint());
    window.resize(box.size());
    window.ensurePolished();
    QStyleOptionButton option;
    option.initFrom(&box);
    constexpr bool isCheck = std::is_same_v<Box, QCheckBox>;
    const QRect indicator = box.style()->subElementRect(
        isCheck ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option, &box);
    const QImage picture = window.grab().toImage();
    double most = 1;
    for (int x = indicator.left(); x < indicator.left() + 4; ++x)
        most = std::max(most, contrast(picture.pixelColor(x, indicator.center().y()),
                                       QApplication::palette().color(QPalette::Window)));
    return most;
}

class ColorScheme : public testing::TestWithParam<const char*>
{
protected:
    const QPalette mBefore = QApplication::palette();
    const zp::test::TemporaryVariable mScheme{"ZELPANE_SCHEME", GetParam()};
    void SetUp() override { zp::applyColorScheme(); }
    void TearDown() override
    {
        QApplication::setPalette(mBefore);
        for (const char* widget : {"QCheckBox", "QRadioButton"}) QApplication::setPalette(mBefore, widget);
    }
};

TEST_P(ColorScheme, BoxesStandOut)
{
    EXPECT_GE(rimContrast<QCheckBox>(true), 3);
    EXPECT_GE(rimContrast<QRadioButton>(true), 3);
    EXPECT_LT(rimContrast<QCheckBox>(false), rimContrast<QCheckBox>(true));
}

TEST_P(ColorScheme, TextsAreReadable)
{
    const QPalette p = QApplication::palette();
    EXPECT_GE(contrast(p.color(QPalette::WindowText), p.color(QPalette::Window)), 7);
    EXPECT_GE(contrast(p.color(QPalette::Text), p.color(QPalette::Base)), 7);
    EXPECT_GE(contrast(p.color(QPalette::ButtonText), p.color(QPalette::Button)), 7);
    const QPalette boxes = QApplication::palette("QCheckBox");
    EXPECT_EQ(boxes.color(QPalette::WindowText), p.color(QPalette::WindowText));
}

INSTANTIATE_TEST_SUITE_P(Both, ColorScheme, testing::Values("dark", "light"));

} // namespace
