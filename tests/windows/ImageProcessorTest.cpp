// SPDX-License-Identifier: GPL-3.0-or-later
/// The batch window by its fields and buttons, over a real document.
#include "base/Folders.h"
#include "base/NotificationCenter.h"
#include "batch/BatchCommandLine.h"
#include "batch/Watermarks.h"
#include "codecs/ImageImporter.h"
#include "support/AlertWatch.h"
#include "support/DocumentFixture.h"
#include "support/Samples.h"
#include "windows/ZPImageProcessor.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTextDocumentFragment>
#include <QTimer>
#include <any>

using namespace zp;
using zp::test::sample;

namespace
{

class ImageProcessor : public zp::test::DocumentTest
{
protected:
    ImageProcessor()
    {
        for (const std::string& folder : {source(), destination()}) {
            removeItem(folder);
            createFolder(folder);
        }
        NotificationCenter::defaultCenter().addObserver(this, "_giveMeCanvasNotif", [this](const Notification&) {
            ++mAsked;
            NotificationCenter::defaultCenter().post("_canvasNotif", std::any(canvas.get()));
        });
        takeSounds();
    }
    ~ImageProcessor() override { NotificationCenter::defaultCenter().removeObserver(this); }

    static std::string source() { return temporaryFolder() + "/window source"; }
    static std::string destination() { return temporaryFolder() + "/window destination"; }
    static void add(const std::string& original, const std::string& name)
    {
        ASSERT_TRUE(copyItem(sample(original), source() + "/" + name));
    }
    template <class T>
    T* control(const char* name) const
    {
        T* found = processor().window()->findChild<T*>(name);
        EXPECT_TRUE(found) << name;
        return found;
    }
    static ZPImageProcessor& processor() { return *ZPImageProcessor::sharedImageProcessor(); }
    static void click(QPushButton* button) { button->click(); }

    /// Opens the window, does @p inside once it runs, answers alerts that come, and returns when it closed.
    std::vector<AlertState> show(const std::function<void()>& inside)
    {
        for (const char* name : {"mWatermarkRelative", "mWatermarkTiled", "mWatermarkEachPicture"})
            control<QCheckBox>(name)->setChecked(false); // the one window keeps what the test before left
        control<QSpinBox>("mWatermarkTurn")->setValue(0);
        zp::test::AlertWatch watch;
        QTimer::singleShot(0, [&] { inside(); });
        processor().showWindow();
        return watch.seen;
    }
    void fillIn(const std::string& from, const std::string& to, bool tiff = false, bool jpeg = true, int fit = 0)
    {
        control<QLineEdit>("mSrcFolder")->setText(QString::fromStdString(from));
        control<QLineEdit>("mDstFolder")->setText(QString::fromStdString(to));
        control<QCheckBox>("mFileTypeTIFF")->setChecked(tiff);
        control<QCheckBox>("mFileTypeJPEG")->setChecked(jpeg);
        control<QCheckBox>("mImageSizeFit")->setChecked(fit > 0);
        if (fit > 0) {
            control<QSpinBox>("mImageSizeW")->setValue(fit);
            control<QSpinBox>("mImageSizeH")->setValue(fit);
        }
    }
    void run() { click(control<QPushButton>("mRunButton")); }
    int mAsked = 0;
};

std::size_t count(const std::vector<std::string>& sounds, const char* name)
{
    return std::size_t(std::count(sounds.begin(), sounds.end(), name));
}

TEST_F(ImageProcessor, IsOneModalWindowWithItsOutletsAndActions)
{
    EXPECT_EQ(ZPImageProcessor::sharedImageProcessor(), &processor());
    EXPECT_EQ(processor().window()->objectName(), "ImageProcessor");
    show([&] {
        EXPECT_TRUE(processor().window()->isVisible());
        EXPECT_TRUE(processor().window()->isModal());
        EXPECT_EQ(control<QPushButton>("mRunButton")->property("action"), "run:");
        EXPECT_EQ(control<QPushButton>("mCancelButton")->property("action"), "cancel:");
        EXPECT_EQ(control<QPushButton>("mSelectSrcButton")->property("action"), "selectSrc:");
        EXPECT_EQ(control<QPushButton>("mSelectDstButton")->property("action"), "selectDst:");
        control<QCheckBox>("mImageSizeFit")->setChecked(false);
        EXPECT_FALSE(control<QSpinBox>("mImageSizeW")->isEnabled());
        EXPECT_FALSE(control<QSpinBox>("mImageSizeH")->isEnabled());
        control<QCheckBox>("mImageSizeFit")->setChecked(true);
        EXPECT_TRUE(control<QSpinBox>("mImageSizeW")->isEnabled());
        click(control<QPushButton>("mCancelButton"));
    });
    EXPECT_FALSE(processor().window()->isVisible());
}

TEST_F(ImageProcessor, RefusesInOrderAndCloses)
{
    struct Case {
        std::string from, to;
        const char* title;
        bool beeps;
    };
    for (const Case& c :
         {Case{"", "", "Choose a source folder.", false}, Case{"/x", "", "Choose a destination folder.", false},
          Case{"/x", "/x", "Source and destination folder cannot be the same.", false},
          Case{source(), "/nowhere", "Error: Source or destination folder does not exist.", true}}) {
        const auto alerts = show([&] {
            fillIn(c.from, c.to);
            run();
        });
        ASSERT_EQ(alerts.size(), 1u);
        EXPECT_EQ(alerts[0].title, c.title);
        EXPECT_EQ(alerts[0].message, "");
        EXPECT_EQ(alerts[0].buttons, QStringList{"OK"});
        EXPECT_FALSE(processor().window()->isVisible());
        EXPECT_EQ(count(takeSounds(), "beep"), c.beeps ? 1u : 0u);
    }
    EXPECT_EQ(mAsked, 0);
}

TEST_F(ImageProcessor, AnEmptyRunIsSilent)
{
    add("made/valid/base.png", "a.png");
    add("made/valid/base.jpg", "b.JPG");
    const auto alerts = show([&] {
        fillIn(source(), destination());
        run();
    });
    EXPECT_TRUE(alerts.empty());
    EXPECT_EQ(count(takeSounds(), "Glass"), 0u);
    EXPECT_TRUE(contentsOfFolder(destination()).empty());
    EXPECT_FALSE(processor().window()->isVisible());
}

TEST_F(ImageProcessor, RunsThroughTheDocument)
{
    add("photos/tahoe-gps.jpg", "photo.jpg");
    add("made/valid/base.tif", "small.tiff");
    show([&] {
        fillIn(source(), destination(), true, true, 100);
        run();
    });
    EXPECT_EQ(mAsked, 4); // twice an image
    EXPECT_EQ(contentsOfFolder(destination()),
              (std::vector<std::string>{"photo.jpg", "photo.tiff", "small.jpg", "small.tiff"}));
    EXPECT_EQ(importImageFile(destination() + "/photo.tiff").bitmap->pixelsWide(), 100);
    EXPECT_EQ(importImageFile(destination() + "/photo.jpg").bitmap->pixelsHigh(), 75);
    EXPECT_EQ(importImageFile(destination() + "/small.jpg").bitmap->pixelsHigh(), 56); // 64 x 36 enlarged, cut off
    EXPECT_EQ(count(takeSounds(), "Glass"), 1u);
    EXPECT_FALSE(history().isSuppressed());
    settle();
}

TEST_F(ImageProcessor, FailuresAreListedAtTheEnd)
{
    add("made/valid/base.jpg", "good.jpg");
    add("made/wrong-ext/svg-external.jpg", "bad.jpg");
    const auto alerts = show([&] {
        fillIn(source(), destination());
        run();
    });
    ASSERT_EQ(alerts.size(), 1u); // none during the run
    EXPECT_EQ(alerts[0].title, "One file could not be processed.");
    EXPECT_TRUE(alerts[0].message.contains("bad.jpg"));
    EXPECT_EQ(contentsOfFolder(destination()), std::vector<std::string>{"good.jpg"});
    settle();
}

TEST_F(ImageProcessor, TheListOfFailuresIsWholeAndCanBeCopied)
{
    for (int i = 10; i < 50; ++i)
        add(i % 2 ? "made/truncated/50pc.jpg" : "made/wrong-ext/svg-external.jpg", std::to_string(i) + ".jpg");
    QString listed;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* list = window->findChild<QPlainTextEdit*>("AlertList"); list && window->isVisible()) {
                EXPECT_TRUE(list->isReadOnly());
                list->selectAll();
                listed = list->textCursor().selection().toPlainText();
            }
    });
    look.start(0);
    const auto alerts = show([&] {
        fillIn(source(), destination());
        run();
    });
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].title, "40 files could not be processed.");
    EXPECT_EQ(alerts[0].buttons, QStringList{"OK"});
    EXPECT_EQ(alerts[0].message.count('\n'), 39);
    EXPECT_TRUE(alerts[0].message.contains("49.jpg: The file is damaged or ends too early"));
    EXPECT_EQ(listed, alerts[0].message);
    EXPECT_TRUE(contentsOfFolder(destination()).empty());
    settle();
}

TEST_F(ImageProcessor, WritesTheVeryFilesOfTheCommandLine)
{
    removeItem(watermarkFolder());
    createFolder(watermarkFolder());
    ASSERT_TRUE(copyItem(sample("made/valid/base.tif"), watermarkFolder() + "/mark.tiff"));
    add("photos/tahoe-gps.jpg", "photo.jpg");
    add("photos/seeding-600-cmyk.jpg", "inks.jpg");
    add("made/exif/orientation-6.jpg", "turned.jpg");
    add("made/valid/base.tif", "small.tiff");
    add("made/valid/base.png", "other.tiff"); // by its content
    add("made/valid/base.jpg", "twice.jpg");
    add("made/exif/orientation-1.tif", "twice.tiff");
    add("made/truncated/50pc.jpg", "short.jpg");

    struct Case {
        std::vector<std::string> words;
        bool tiff, jpeg;
        int fit;
        bool mark = false;
        int x = 0, y = 0, opacity = 100;
        int place = 0, margin = 0; ///< the preset's row, for each picture; 0: at (x, y)
        int relative = 0;          ///< percent; 0: in pixels
        int tile = -1;             ///< gap in percent; -1: once
        int turn = 0;
    };
    const std::vector<Case> cases = {
        {{"--tiff", "--jpeg"}, true, true, 0},
        {{"--tiff", "--fit", "100x100"}, true, false, 100},
        {{"--jpeg", "--fit", "400x400"}, false, true, 400},
        {{"--tiff", "--jpeg", "--fit", "731x731", "--watermark", "mark.tiff", "--at", "-5,12", "--opacity", "40"},
         true,
         true,
         731,
         true,
         -5,
         12,
         40},
        {{"--jpeg", "--fit", "64x64", "--watermark", "mark.tiff", "--opacity", "250"},
         false,
         true,
         64,
         true,
         0,
         0,
         250},
        {{"--tiff", "--watermark", "mark.tiff", "--place", "lower-right+9"}, true, false, 0, true, 7, 7, 100, 2, 9},
        {{"--tiff", "--fit", "333x333", "--watermark", "mark.tiff", "--place", "centre", "--opacity", "70"},
         true,
         false,
         333,
         true,
         7,
         7,
         70,
         5},
        {{"--tiff", "--watermark", "mark.tiff", "--relative", "40", "--place", "upper-right+5"},
         true,
         false,
         0,
         true,
         3,
         3,
         100,
         4,
         5,
         40},
        {{"--jpeg", "--fit", "500x500", "--watermark", "mark.tiff", "--relative", "30", "--at", "10,20", "--opacity",
          "60", "--tile", "40", "--turn", "25"},
         false,
         true,
         500,
         true,
         10,
         20,
         60,
         0,
         0,
         30,
         40,
         25},
        {{"--tiff", "--fit", "300x300", "--watermark", "mark.tiff", "--tile", "0", "--turn=-90"},
         true,
         false,
         300,
         true,
         0,
         0,
         100,
         0,
         0,
         0,
         0,
         -90},
    };
    const std::string byCommand = temporaryFolder() + "/command destination";
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.words));
        for (const std::string& folder : {byCommand, destination()}) {
            removeItem(folder);
            createFolder(folder);
        }
        const auto alerts = show([&] {
            fillIn(source(), destination(), c.tiff, c.jpeg, c.fit);
            control<QComboBox>("mWatermark")->setCurrentIndex(c.mark ? 1 : 0);
            control<QComboBox>("mWatermarkPosition")->setCurrentIndex(c.place);
            control<QCheckBox>("mWatermarkEachPicture")->setChecked(c.place > 0);
            control<QCheckBox>("mWatermarkRelative")->setChecked(c.relative > 0);
            control<QSpinBox>("mWatermarkSize")->setValue(c.relative);
            control<QCheckBox>("mWatermarkTiled")->setChecked(c.tile >= 0);
            control<QSpinBox>("mWatermarkGap")->setValue(c.tile);
            control<QSpinBox>("mWatermarkTurn")->setValue(c.turn);
            control<QSpinBox>("mWatermarkMargin")->setValue(c.margin);
            control<QSpinBox>("mWatermarkPositionX")->setValue(c.x);
            control<QSpinBox>("mWatermarkPositionY")->setValue(c.y);
            control<QSpinBox>("mWatermarkOpacity")->setValue(c.opacity);
            run();
        });
        ASSERT_EQ(alerts.size(), 1u); // of the damaged one
        EXPECT_EQ(alerts[0].title, "One file could not be processed.");
        settle();

        std::vector<std::string> words{"zelpane", "--batch", source(), byCommand};
        words.insert(words.end(), c.words.begin(), c.words.end());
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        EXPECT_EQ(runBatchCommandLine(int(argv.size()), argv.data()), 1);
        const auto names = contentsOfFolder(byCommand);
        EXPECT_EQ(names.size(), (c.tiff ? 6u : 0u) + (c.jpeg ? 6u : 0u));
        EXPECT_EQ(contentsOfFolder(destination()), names);
        for (const std::string& name : names)
            EXPECT_EQ(readWholeFile(destination() + "/" + name), readWholeFile(byCommand + "/" + name)) << name;
    }
    removeItem(byCommand);
}

TEST_F(ImageProcessor, ASourceFolderThatCannotBeListedIsSaid)
{
    const std::string file = temporaryFolder() + "/no folder";
    writeFileSafely(file, "x", 1);
    const auto alerts = show([&] {
        fillIn(file, destination());
        run();
    });
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].title, "The source folder cannot be listed.");
    EXPECT_FALSE(processor().window()->isVisible());
    removeItem(file);
}

TEST_F(ImageProcessor, CancelEndsTheRunAfterTheImageAtWork)
{
    for (int i = 0; i < 12; ++i) add("made/valid/base.jpg", std::to_string(10 + i) + ".jpg");
    QTimer press;
    QObject::connect(&press, &QTimer::timeout, [&] {
        if (processor().isRunning() && contentsOfFolder(destination()).size() >= 3)
            control<QPushButton>("mCancelButton")->click();
    });
    press.start(0);
    show([&] {
        fillIn(source(), destination());
        run();
    });
    const auto names = contentsOfFolder(destination());
    EXPECT_GE(names.size(), 3u);
    EXPECT_LT(names.size(), 12u);
    for (const std::string& name : names) EXPECT_TRUE(importImageFile(destination() + "/" + name).bitmap) << name;
    EXPECT_FALSE(processor().window()->isVisible());
    EXPECT_FALSE(processor().isRunning());
    settle();
}

TEST_F(ImageProcessor, WatermarksAreOfferedAndStamped)
{
    removeItem(watermarkFolder());
    createFolder(watermarkFolder());
    ASSERT_TRUE(copyItem(sample("made/valid/base.tif"), watermarkFolder() + "/mark.tiff"));
    add("made/exif/orientation-1.tif", "a.tiff");
    show([&] {
        fillIn(source(), destination(), true, false);
        auto* marks = control<QComboBox>("mWatermark");
        EXPECT_EQ(marks->count(), 2);
        EXPECT_EQ(marks->itemText(0), "None");
        EXPECT_EQ(marks->currentIndex(), 0);
        marks->setCurrentIndex(1);
        control<QSpinBox>("mWatermarkPositionX")->setValue(0);
        control<QSpinBox>("mWatermarkPositionY")->setValue(0);
        control<QSpinBox>("mWatermarkOpacity")->setValue(100);
        run();
    });
    const auto out = importImageFile(destination() + "/a.tiff").bitmap;
    const auto mark = importImageFile(sample("made/valid/base.tif")).bitmap;
    ASSERT_TRUE(out);
    EXPECT_EQ(out->view().row(95)[0], mark->view().row(35)[0]); // lower left on lower left
    settle();
}

TEST_F(ImageProcessor, PresetsFillInThePosition)
{
    show([&] {
        auto* places = control<QComboBox>("mWatermarkPosition");
        control<QCheckBox>("mImageSizeFit")->setChecked(true);
        control<QSpinBox>("mImageSizeW")->setValue(1000);
        control<QSpinBox>("mImageSizeH")->setValue(500);
        places->setCurrentIndex(5);
        emit places->activated(5);
        EXPECT_EQ(control<QSpinBox>("mWatermarkPositionX")->value(),
                  500); // no watermark chosen: its own size is nothing
        EXPECT_EQ(control<QSpinBox>("mWatermarkPositionY")->value(), 250);
        click(control<QPushButton>("mCancelButton"));
    });
}

TEST_F(ImageProcessor, TheSwitchForEachPictureIsOffAndFreesTheFieldsThatCount)
{
    show([&] {
        auto* each = control<QCheckBox>("mWatermarkEachPicture");
        auto* places = control<QComboBox>("mWatermarkPosition");
        auto* x = control<QSpinBox>("mWatermarkPositionX");
        each->setChecked(false);
        places->setCurrentIndex(2);
        emit places->activated(2);
        EXPECT_TRUE(x->isEnabled());
        EXPECT_FALSE(control<QSpinBox>("mWatermarkMargin")->isEnabled());
        x->setValue(17);
        each->setChecked(true);
        emit places->activated(2);
        EXPECT_FALSE(x->isEnabled());
        EXPECT_TRUE(control<QSpinBox>("mWatermarkMargin")->isEnabled());
        EXPECT_EQ(x->value(), 17); // nothing is filled in
        places->setCurrentIndex(0);
        emit places->activated(0);
        EXPECT_TRUE(x->isEnabled()); // a position of one's own is one for all
        each->setChecked(false);
        click(control<QPushButton>("mCancelButton"));
    });
}

TEST_F(ImageProcessor, SwitchesOfTheLayoutAreOffAndEachUnitKeepsItsNumbers)
{
    show([&] {
        auto* relative = control<QCheckBox>("mWatermarkRelative");
        auto* tiled = control<QCheckBox>("mWatermarkTiled");
        auto* each = control<QCheckBox>("mWatermarkEachPicture");
        auto* margin = control<QSpinBox>("mWatermarkMargin");
        auto* x = control<QSpinBox>("mWatermarkPositionX");
        relative->setChecked(false);
        tiled->setChecked(false);
        each->setChecked(false);
        EXPECT_FALSE(control<QSpinBox>("mWatermarkSize")->isEnabled());
        EXPECT_FALSE(control<QSpinBox>("mWatermarkGap")->isEnabled());
        margin->setValue(120);
        x->setValue(444);
        EXPECT_EQ(margin->suffix(), " px");

        relative->setChecked(true);
        EXPECT_TRUE(control<QSpinBox>("mWatermarkSize")->isEnabled());
        EXPECT_TRUE(each->isChecked()); // one position for all means nothing in percent
        EXPECT_FALSE(each->isEnabled());
        EXPECT_EQ(margin->suffix(), " %");
        EXPECT_EQ(x->suffix(), " %");
        margin->setValue(8);
        x->setValue(-2);

        relative->setChecked(false);
        EXPECT_EQ(margin->value(), 120);
        EXPECT_EQ(x->value(), 444);
        EXPECT_EQ(x->suffix(), "");
        EXPECT_FALSE(each->isChecked());
        EXPECT_TRUE(each->isEnabled());
        relative->setChecked(true);
        EXPECT_EQ(margin->value(), 8);
        EXPECT_EQ(x->value(), -2);
        relative->setChecked(false);
        margin->setValue(0);
        x->setValue(0);
        tiled->setChecked(true);
        EXPECT_TRUE(control<QSpinBox>("mWatermarkGap")->isEnabled());
        tiled->setChecked(false);
        click(control<QPushButton>("mCancelButton"));
    });
}

TEST_F(ImageProcessor, AWatermarkComesBackAsItWasLastUsed)
{
    removeItem(watermarkFolder());
    createFolder(watermarkFolder());
    for (const char* name : {"a.tiff", "b.tiff"})
        ASSERT_TRUE(copyItem(sample("made/valid/base.tif"), watermarkFolder() + "/" + name));
    add("made/valid/base.jpg", "x.jpg");
    const auto choose = [&](int row) {
        control<QComboBox>("mWatermark")->setCurrentIndex(row);
        emit control<QComboBox>("mWatermark")->activated(row);
    };
    show([&] {
        fillIn(source(), destination());
        choose(1);
        control<QCheckBox>("mWatermarkRelative")->setChecked(true);
        control<QSpinBox>("mWatermarkSize")->setValue(33);
        control<QSpinBox>("mWatermarkMargin")->setValue(6);
        control<QCheckBox>("mWatermarkTiled")->setChecked(true);
        control<QSpinBox>("mWatermarkTurn")->setValue(15);
        EXPECT_EQ(keptWatermarkLayout("a.tiff"), WatermarkLayout()); // by a run only
        run();
    });
    const WatermarkLayout used{.relative = true, .size = 33, .margin = 6, .tiled = true, .gap = 50, .turn = 15};
    EXPECT_EQ(keptWatermarkLayout("a.tiff"), used);
    EXPECT_EQ(watermarkNames(), (std::vector<std::string>{"a.tiff", "b.tiff"}));
    show([&] {
        choose(2); // never used: as given
        EXPECT_FALSE(control<QCheckBox>("mWatermarkRelative")->isChecked());
        EXPECT_FALSE(control<QCheckBox>("mWatermarkTiled")->isChecked());
        EXPECT_EQ(control<QSpinBox>("mWatermarkTurn")->value(), 0);
        choose(1);
        EXPECT_TRUE(control<QCheckBox>("mWatermarkRelative")->isChecked());
        EXPECT_EQ(control<QSpinBox>("mWatermarkSize")->value(), 33);
        EXPECT_EQ(control<QSpinBox>("mWatermarkMargin")->value(), 6);
        EXPECT_EQ(control<QSpinBox>("mWatermarkTurn")->value(), 15);
        choose(2);
        click(control<QPushButton>("mCancelButton"));
    });
    EXPECT_EQ(keptWatermarkLayout("a.tiff"), used); // Cancel keeps nothing
    settle();
}

TEST_F(ImageProcessor, PreviewShowsThreePicturesAndFollowsTheFields)
{
    removeItem(watermarkFolder());
    createFolder(watermarkFolder());
    ASSERT_TRUE(copyItem(sample("made/valid/base.tif"), watermarkFolder() + "/mark.tiff"));
    add("photos/tahoe-gps.jpg", "flat.jpg");
    add("photos/seeding-600-cmyk.jpg", "inks.jpg");
    add("made/exif/orientation-6.jpg", "turned.jpg");
    add("made/valid/base.jpg", "small.jpg");
    const auto picture = [&](int i) {
        return control<QLabel>(qPrintable(QString("mPreviewPicture%1").arg(i)))->pixmap().toImage();
    };
    const auto until = [](const std::function<bool()>& done) {
        QElapsedTimer clock;
        for (clock.start(); !done() && clock.elapsed() < 20'000;) QApplication::processEvents({}, 20);
        EXPECT_TRUE(done());
    };
    show([&] {
        auto* button = control<QPushButton>("mPreviewButton");
        auto* strip = control<QWidget>("mPreviewStrip");
        EXPECT_FALSE(strip->isVisible());
        fillIn("", destination());
        click(button);
        EXPECT_TRUE(strip->isVisible());
        EXPECT_EQ(control<QLabel>("mPreviewText")->text(), "Choose a source folder.");
        fillIn(source(), destination());
        until([&] { return !picture(1).isNull() && !picture(2).isNull() && !picture(3).isNull(); });
        EXPECT_EQ(control<QLabel>("mPreviewText")->text(), "The widest, the tallest and the squarest of 4 images");
        EXPECT_TRUE(control<QLabel>("mPreviewName1")->text().contains(QChar(0xD7)));
        const QImage plain = picture(1);
        control<QComboBox>("mWatermark")->setCurrentIndex(1);
        control<QCheckBox>("mWatermarkTiled")->setChecked(true);
        until([&] { return picture(1) != plain; });
        control<QComboBox>("mWatermark")->setCurrentIndex(0);
        until([&] { return picture(1) == plain; });
        control<QLineEdit>("mSrcFolder")->setText("/nowhere at all");
        until([&] { return picture(1).isNull(); });
        EXPECT_EQ(control<QLabel>("mPreviewText")->text(), "The source folder cannot be listed.");
        click(button);
        EXPECT_FALSE(strip->isVisible());
        control<QCheckBox>("mWatermarkTiled")->setChecked(false);
        click(control<QPushButton>("mCancelButton"));
    });
    EXPECT_TRUE(contentsOfFolder(destination()).empty());
    EXPECT_EQ(contentsOfFolder(source()).size(), 4u);
}

TEST_F(ImageProcessor, FolderPanelsFillInTheFields)
{
    setPanelsAutomated(true);
    const std::string odd = temporaryFolder() + "/\xFF odd";
    createFolder(odd);
    ASSERT_TRUE(copyItem(sample("made/valid/base.jpg"), odd + "/a.jpg"));
    show([&] {
        fillIn("", destination());
        queuePanelChoice(std::nullopt);
        click(control<QPushButton>("mSelectSrcButton"));
        EXPECT_EQ(control<QLineEdit>("mSrcFolder")->text(), "");
        EXPECT_EQ(lastPanel()->title, "Choose source folder");
        EXPECT_EQ(lastPanel()->prompt, "Choose");
        queuePanelChoice(odd);
        click(control<QPushButton>("mSelectSrcButton"));
        queuePanelChoice(destination());
        click(control<QPushButton>("mSelectDstButton"));
        EXPECT_EQ(lastPanel()->title, "Choose destination folder");
        run();
    });
    setPanelsAutomated(false);
    EXPECT_EQ(contentsOfFolder(destination()), std::vector<std::string>{"a.jpg"}); // a name that is no text still works
    settle();
}

} // namespace
