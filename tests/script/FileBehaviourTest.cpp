// SPDX-License-Identifier: GPL-3.0-or-later
/// Opening and saving seen through the automation language: what the program says, asks and writes.
#include "support/Samples.h"
#include "support/Session.h"
#include <QFileInfo>

namespace
{

using namespace zp::test;

class FileSession : public testing::Test
{
protected:
    QJsonObject status() { return run.must("status"); }
    QString message() { return status()["message"].toString(); }
    QJsonObject notice() { return run.must("notice")["notice"].toObject(); }
    /// A copy of a sample in the session's folder.
    QString put(const std::string& original, const QString& name)
    {
        EXPECT_TRUE(QFile::copy(QString::fromStdString(sample(original)), run.file(name))) << original;
        QFile::setPermissions(run.file(name), QFile::ReadOwner | QFile::WriteOwner);
        return run.file(name);
    }
    /// All fields but where the ants are, who march on.
    QJsonObject stillState()
    {
        QJsonObject state = run.state();
        state.remove("mSelectionPhase");
        return state;
    }
    QString picturePath() { return run.must("image")["path"].toString(); }
    Session run;
};

TEST_F(FileSession, TheStatusLineSaysWhatWasSaved)
{
    run.newImage(40, 30);
    EXPECT_EQ(status()["title"].toString(), "Untitled — Zelpane");
    EXPECT_EQ(message(), "");
    run.play({"menu flipH:", "wait"});
    EXPECT_EQ(status()["title"].toString(), "Untitled* — Zelpane");
    EXPECT_TRUE(status()["modified"].toBool());
    run.must("send saveImageAsJPEG: shown.jpg");
    const qint64 bytes = QFileInfo(run.file("shown.jpg")).size();
    const QString size =
        bytes < 1024 ? QString("%1 bytes").arg(bytes) : QString("%1 KB").arg(qRound64(double(bytes) / 1024));
    EXPECT_EQ(message(), "Saved shown.jpg · JPEG 70 · " + size);
    EXPECT_EQ(status()["title"].toString(), "shown.jpg — Zelpane");
    EXPECT_FALSE(status()["modified"].toBool());
    EXPECT_TRUE(status()["picture"].toString().startsWith("40 × 30"));
    run.must("send saveImageAsTIFF: nowhere/shown.tiff");
    EXPECT_EQ(message(), "Not saved: shown.tiff: The folder does not exist.");
    run.must("answer OK");
}

TEST_F(FileSession, NothingIsNoticedOfAPlainPicture)
{
    run.newImage(40, 30);
    EXPECT_TRUE(run.must("notice")["notice"].isNull());
    EXPECT_EQ(run.failure("click-notice Close"), "no such button");
}

// ---- opening -------------------------------------------------------------------------------------------------------

TEST_F(FileSession, AFileThatCannotBeOpenedLeavesEverythingAsItIs)
{
    const QString good = put("made/valid/base.png", "good.png");
    run.must("open " + good);
    run.play({"wait", "menu flipH:", "wait", "menu flipV:", "wait", "menu undo:", "wait",
              "menu selectAll:", "write-bitmap before.pam"});
    const QJsonObject before = stillState();
    QFile bad(run.file("bad.jpg"));
    ASSERT_TRUE(bad.open(QFile::WriteOnly));
    bad.write("no picture");
    bad.close();
    for (const char* name : {"bad.jpg", "missing.png"}) {
        for (const QString& way : {QString("open %1"), QString("choose %1")}) {
            run.must(way.arg(run.file(name)));
            if (way.startsWith("choose")) run.must("menu openDocument:");
            const QJsonObject alert = run.must("alert")["alert"].toObject();
            EXPECT_EQ(alert["title"], "The file could not be opened.");
            EXPECT_TRUE(alert["message"].toString().startsWith(name));
            run.must("answer OK");
            run.must("wait");
            EXPECT_EQ(stillState(), before) << name;
            EXPECT_EQ(picturePath(), good);
            EXPECT_TRUE(message().startsWith(QString("Not opened: ") + name)) << message().toStdString();
        }
    }
    run.must("write-bitmap after.pam");
    QFile one(run.file("before.pam")), two(run.file("after.pam"));
    ASSERT_TRUE(one.open(QFile::ReadOnly) && two.open(QFile::ReadOnly));
    EXPECT_EQ(one.readAll(), two.readAll());
    run.play({"menu redo:", "wait"});
    EXPECT_EQ(run.state()["mUndoRedoIndex"], 2);
}

TEST_F(FileSession, TheOperationItselfGivesTheEmptyPicture)
{
    run.newImage(20, 20);
    run.must("send setImagePath: missing.png");
    run.must("answer OK");
    EXPECT_FALSE(run.must("image")["loaded"].toBool());
    EXPECT_EQ(picturePath(), run.file("missing.png"));
}

TEST_F(FileSession, ARefusedNewPictureLeavesDialogAndPicture)
{
    put("made/valid/base.png", "good.png");
    run.must("open " + run.file("good.png"));
    run.must("wait");
    const QJsonObject before = stillState();
    run.play({"menu newDocument:", "set mNew_Width 40000", "set mNew_Height 30", "click new_new:"});
    EXPECT_FALSE(run.must("alert")["alert"].isNull());
    run.must("answer OK");
    EXPECT_EQ(run.must("windows")["windows"].toArray()[0].toObject()["name"], "New");
    EXPECT_EQ(run.must("get mNew_Width")["value"].toVariant().toInt(), 40000);
    EXPECT_EQ(stillState(), before);
    EXPECT_EQ(picturePath(), run.file("good.png"));
    run.play({"set mNew_Width 40", "click new_new:", "wait"});
    EXPECT_EQ(run.must("image")["width"], 40);
    EXPECT_EQ(picturePath(), "");
}

// ---- what a file holds beside the picture ---------------------------------------------------------------------------

TEST_F(FileSession, TheBarSaysWhatTheFileHolds)
{
    const auto opened = [this](const char* sample, const char* name) {
        run.must("open " + put(sample, name));
        run.must("wait");
        return notice()["text"].toString();
    };
    EXPECT_EQ(opened("made/valid/base.png", "plain.png"), "");
    EXPECT_EQ(opened("tiff-pillow/multipage.tiff", "pages.tiff"), "The file has 3 pages; this is the first.");
    EXPECT_EQ(notice()["buttons"].toArray(), QJsonArray{"Close"});
    EXPECT_EQ(opened("photos/tahoe-gps.jpg", "photo.jpg"), "Save writes quality 70; this file has 85.");
    run.play({"menu save:", "wait"});
    EXPECT_TRUE(run.must("notice")["notice"].isNull()) << "the file has quality 70 now";
    EXPECT_EQ(opened("made/valid/base.jpg", "album.jpeg"), "Save does not write .jpeg files.");
    EXPECT_EQ(notice()["buttons"].toArray(), (QJsonArray{"Use Save as JPEG…", "Close"}));
    run.must("choose " + run.file("album.jpeg"));
    run.must("click-notice \"Use Save as JPEG…\"");
    EXPECT_EQ(picturePath(), run.file("album.jpg"));
    EXPECT_TRUE(message().startsWith("Saved album.jpg · JPEG 70")) << message().toStdString();
    EXPECT_EQ(opened("made/valid/base.tif", "scan.TIF"), "Save does not write .TIF files.");
    EXPECT_EQ(notice()["buttons"].toArray()[0], "Use Save as TIFF…");
    run.must("click-notice Close");
    EXPECT_TRUE(run.must("notice")["notice"].isNull());
}

TEST_F(FileSession, TheFirstSaveIntoAFileThatHoldsMoreAsksOnce)
{
    const QString path = put("tiff-pillow/multipage.tiff", "pages.tiff");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QByteArray original = file.readAll();
    const auto bytes = [&path] {
        QFile now(path);
        EXPECT_TRUE(now.open(QFile::ReadOnly));
        return now.readAll();
    };
    run.must("open " + path);
    run.play({"wait", "menu save:"});
    const QJsonObject alert = run.must("alert")["alert"].toObject();
    EXPECT_EQ(alert["title"], "The file holds more than the image.");
    EXPECT_EQ(alert["message"], "pages.tiff has 3 pages. Saving the image into it takes that away.");
    EXPECT_EQ(alert["buttons"], (QJsonArray{"Save", "Save as…", "Cancel"}));
    run.must("answer Cancel");
    EXPECT_EQ(bytes(), original);
    run.must("choose " + run.file("copy.tiff"));
    run.play({"menu save:", "answer \"Save as…\""});
    EXPECT_EQ(picturePath(), run.file("copy.tiff"));
    EXPECT_EQ(bytes(), original);
    run.must("menu save:");
    EXPECT_TRUE(run.must("alert")["alert"].isNull()) << "the copy holds the picture alone";
    run.must("open " + path);
    run.play({"wait", "menu save:", "answer Save"});
    EXPECT_NE(bytes(), original);
    run.must("menu save:");
    EXPECT_TRUE(run.must("alert")["alert"].isNull());
}

TEST_F(FileSession, QuickSaveAsksAboutTheFileItWillWrite)
{
    run.newImage(20, 20);
    run.play({"menu quickSave:", "set mName_Name_Field \"Version 2.5\"", "click name_save:", "wait"});
    const QString library = run.file("Pictures/Zelpane Image Library/");
    EXPECT_TRUE(QFileInfo::exists(library + "Version 2.5.tiff"));
    for (const char* name : {"../../evil", ".", ".."}) {
        run.must("menu quickSave:");
        run.must(QString("set mName_Name_Field %1").arg(name));
        run.must("click name_save:");
        EXPECT_EQ(run.must("alert")["alert"].toObject()["title"], "Please enter a proper file name.");
        run.play({"answer OK", "click name_cancel:"});
    }
    run.play({"menu quickSave:", "set mName_Name_Field \"Version 2.5.png\"", "click name_save:"});
    EXPECT_EQ(run.must("alert")["alert"].toObject()["title"], "File already exists");
    run.play({"answer No", "click name_cancel:"});
}

TEST_F(FileSession, ACopyWithoutPrivateDataIsNotThePicturesFile)
{
    const QString path = put("photos/tahoe-gps.jpg", "lake.jpg");
    run.must("open " + path);
    run.must("wait");
    run.must("choose " + run.file("copy.jpg"));
    run.must("menu saveWithoutPrivateData:");
    EXPECT_EQ(run.must("panel")["panel"].toObject()["name"], "lake (shared).jpg");
    EXPECT_TRUE(message().startsWith("Saved copy.jpg · JPEG 70")) << message().toStdString();
    EXPECT_EQ(picturePath(), path);
    QFile copy(run.file("copy.jpg"));
    ASSERT_TRUE(copy.open(QFile::ReadOnly));
    const QByteArray bytes = copy.readAll();
    EXPECT_FALSE(bytes.contains("T-Mobile"));
    EXPECT_TRUE(bytes.contains("Edited by Zelpane"));
}

TEST_F(FileSession, CopiesAreMadeForASizeAndForALook)
{
    const QString path = put("photos/tahoe-gps.jpg", "lake.jpg");
    run.must("open " + path);
    run.must("wait");
    run.must("send saveImage:atMost: " + run.file("small.jpg") + " 200");
    EXPECT_TRUE(message().startsWith("Saved small.jpg · JPEG ")) << message().toStdString();
    EXPECT_LE(QFileInfo(run.file("small.jpg")).size(), 200 * 1024);
    run.must("send saveImageLooksSame: " + run.file("same.webp"));
    EXPECT_TRUE(message().startsWith("Saved same.webp · WebP ")) << message().toStdString();
    EXPECT_LT(QFileInfo(run.file("same.webp")).size(), QFileInfo(path).size());
    EXPECT_EQ(picturePath(), path);
    struct Refused {
        QString line, words;
    };
    for (const Refused& r : {Refused{"saveImage:atMost: " + run.file("tiny.jpg") + " 1", "Even at the lowest quality"},
                             Refused{"saveImageLooksSame: " + run.file("same.png"), "no quality to choose"}}) {
        run.ask("send " + r.line);
        EXPECT_TRUE(message().contains(r.words)) << message().toStdString();
        run.play({"answer OK"});
    }
    EXPECT_FALSE(QFile::exists(run.file("tiny.jpg")));
    EXPECT_FALSE(QFile::exists(run.file("same.png")));
}

} // namespace
