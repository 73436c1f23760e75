// SPDX-License-Identifier: GPL-3.0-or-later
/// Start-up, quitting and the folders they touch, through the real program.
#include "support/Session.h"

using zp::test::Session;

TEST(Launch, AsksForANewOrAnExistingImage)
{
    Session s(QStringList{});
    const QJsonObject alert = s.must("alert")["alert"].toObject();
    EXPECT_EQ(alert["title"], "What would you like to do? Create a new image or open an existing image.");
    EXPECT_EQ(alert["message"], "");
    EXPECT_EQ(alert["buttons"], (QJsonArray{"New…", "Open…", "Cancel"}));
    EXPECT_TRUE(s.must("windows")["windows"].toArray()[0].toObject()["modal"].toBool());
    s.must("answer Cancel");
    EXPECT_TRUE(s.must("alert")["alert"].isNull());
    EXPECT_FALSE(s.must("image")["loaded"].toBool());
    EXPECT_EQ(s.end(), 0);
}

TEST(Launch, NewLeadsToTheSizeDialog)
{
    Session s(QStringList{});
    s.must("answer \"New…\"");
    EXPECT_EQ(s.must("windows")["windows"].toArray()[0].toObject()["name"], "New");
    s.play({"set mNew_Width 320", "set mNew_Height 200", "click new_new:", "wait"});
    const QJsonObject image = s.must("image");
    EXPECT_EQ(image["width"], 320);
    EXPECT_EQ(image["height"], 200);
    EXPECT_EQ(image["rowBytes"], 64 * (320 / 16) + 64);
    EXPECT_EQ(image["path"], "");
    EXPECT_TRUE(image["gworld"].toBool());
}

TEST(Launch, AWordLeadsStraightToWhatItNames)
{
    {
        Session s({"--new"});
        EXPECT_EQ(s.must("windows")["windows"].toArray()[0].toObject()["name"], "New");
        EXPECT_TRUE(s.must("alert")["alert"].isNull());
    }
    {
        Session s({"--image-processor"});
        EXPECT_EQ(s.must("alert")["alert"].toObject()["title"], "Do you really want to use the image processor?");
    }
    {
        Session s({"--open"});
        EXPECT_FALSE(s.must("panel")["panel"].isNull());
    }
}

TEST(Launch, ADocumentLeavesTheQuestionOut)
{
    QTemporaryDir home;
    {
        Session maker({"--no-start-choice"}, home.path());
        maker.newImage(12, 9);
        maker.must("send saveImageAsTIFF: " + maker.file("a.tiff"));
        EXPECT_EQ(maker.end(), 0);
    }
    Session s(QStringList{home.path() + "/a.tiff"}, home.path());
    s.must("wait");
    EXPECT_TRUE(s.must("alert")["alert"].isNull());
    const QJsonObject image = s.must("image");
    EXPECT_EQ(image["width"], 12);
    EXPECT_FALSE(image["gworld"].toBool()) << "opening keeps no world";
    EXPECT_EQ(image["cacheMode"], 3);
    EXPECT_EQ(s.state()["mUndoIndex"], 0);
}

TEST(Launch, PreparesTheFoldersOnceAndRemovesTheUndoFolderAtTheEnd)
{
    QTemporaryDir home;
    const auto there = [&](const char* name) { return QFileInfo::exists(home.path() + "/" + name); };
    {
        Session s({"--no-start-choice"}, home.path());
        s.must("image");
        EXPECT_TRUE(there("Pictures/Zelpane Image Library/Hibiskus.jpg"));
        EXPECT_TRUE(there("Library/Preferences/com.orvanta.Zelpane.plist"));
        EXPECT_TRUE(there("Zelpane Undo Support"));
        EXPECT_FALSE(there(".local/share/zelpane/Contents/Resources/Hibiskus.jpg")) << "moved, not copied";
        EXPECT_EQ(s.end(), 0);
    }
    EXPECT_FALSE(there("Zelpane Undo Support"));
    EXPECT_TRUE(there(".local/share/zelpane/Contents/Resources/2xRetina.txt"));
    // Whoever deletes the sample does not get it back.
    QFile::remove(home.path() + "/Pictures/Zelpane Image Library/Hibiskus.jpg");
    Session again({"--no-start-choice"}, home.path());
    again.must("image");
    EXPECT_FALSE(there("Pictures/Zelpane Image Library/Hibiskus.jpg"));
}

TEST(Launch, QuittingAlwaysAsks)
{
    Session s;
    s.must("menu terminate:");
    const QJsonObject alert = s.must("alert")["alert"].toObject();
    EXPECT_EQ(alert["title"], "Do you really want to quit?");
    EXPECT_EQ(alert["message"], "Make sure that the image is saved to disk.");
    EXPECT_EQ(alert["buttons"], (QJsonArray{"Quit", "Cancel"}));
    s.must("answer Cancel");
    EXPECT_EQ(s.end(), 0);
}

TEST(Launch, QuitEndsTheProgramAtOnce)
{
    Session s;
    s.newImage(8, 8);
    s.must("menu terminate:");
    s.send("answer Quit");
    EXPECT_TRUE(s.ended()) << "one question is enough";
    EXPECT_FALSE(QFileInfo::exists(s.file("Zelpane Undo Support")));
}

TEST(Launch, TheRetinaFlagIsKept)
{
    QTemporaryDir home;
    {
        Session s({"--no-start-choice"}, home.path());
        s.must("menu retina:");
        EXPECT_EQ(s.must("alert")["alert"].toObject()["title"], "You have enabled 2x retina display mode.");
        s.must("answer OK");
        EXPECT_TRUE(s.state()["m2xRetina"].toBool());
        EXPECT_EQ(s.end(), 0);
    }
    QFile flag(home.path() + "/.local/share/zelpane/Contents/Resources/2xRetina.txt");
    ASSERT_TRUE(flag.open(QIODevice::ReadOnly));
    EXPECT_EQ(flag.readAll(), "YES");
    Session again({"--no-start-choice"}, home.path());
    EXPECT_TRUE(again.state()["m2xRetina"].toBool());
    again.must("menu retina:");
    EXPECT_EQ(again.must("alert")["alert"].toObject()["title"], "You have disabled 2x retina display mode.");
}

TEST(Menu, IsValidatedByWhatThereIs)
{
    Session s;
    const auto enabled = [&](const char* action) {
        for (const QJsonValue& v : s.must("menus")["items"].toArray())
            if (v.toObject()["action"] == action) return v.toObject()["enabled"].toBool();
        ADD_FAILURE() << action << " is missing";
        return false;
    };
    for (const char* action : {"resize:", "save:", "openWithPreview:", "saveAsTIFF:", "saveAsJPEG:", "loadSelection:",
                               "transform:", "adjust:", "saveSelection:", "undo:", "redo:", "copy:", "fill:"})
        EXPECT_FALSE(enabled(action)) << action;
    for (const char* action : {"newDocument:", "openDocument:", "about:", "prefs:", "help:", "imageEditor:",
                               "fileManager:", "showWindows:", "imageProcessor:", "runPageLayout:", "selectAll:"})
        EXPECT_TRUE(enabled(action)) << action;
    EXPECT_EQ(s.failure("menu save:"), "disabled");
    EXPECT_EQ(s.failure("menu noSuchThing:"), "no such item");
    s.newImage(10, 10);
    for (const char* action : {"resize:", "saveAsTIFF:", "saveAsJPEG:", "loadSelection:"})
        EXPECT_TRUE(enabled(action)) << action;
    EXPECT_FALSE(enabled("save:")) << "it has no file yet";
    EXPECT_FALSE(enabled("transform:"));
    s.must("menu selectAll:");
    for (const char* action :
         {"transform:", "adjust:", "saveSelection:", "copy:", "cut:", "delete:", "fill:", "stroke:", "smartFill:"})
        EXPECT_TRUE(enabled(action)) << action;
    s.must("send saveImageAsTIFF: " + s.file("x.tiff"));
    EXPECT_TRUE(enabled("save:"));
    QFile::remove(s.file("x.tiff"));
    EXPECT_FALSE(enabled("save:")) << "its file is gone";
}

TEST(Menu, TheEditMenuEndsWithAdjust)
{
    Session s;
    QString last;
    for (const QJsonValue& v : s.must("menus")["items"].toArray())
        if (v.toObject()["menu"] == "Edit") last = v.toObject()["title"].toString();
    EXPECT_EQ(last, "Adjust…");
}

TEST(Menu, HelpSaysWhereTheGuideIs)
{
    Session s;
    s.must("menu help:");
    const QJsonObject alert = s.must("alert")["alert"].toObject();
    EXPECT_EQ(alert["title"], "Read the User's Guide");
    EXPECT_EQ(alert["message"], "You can find the User's Guide in the same folder as this application.");
    EXPECT_EQ(alert["buttons"], (QJsonArray{"OK"}));
    s.must("answer OK");
    s.must("menu imageProcessor:");
    EXPECT_EQ(s.must("alert")["alert"].toObject()["title"], "Do you really want to use the image processor?");
    s.must("answer No");
    EXPECT_EQ(s.must("windows")["windows"].toArray().size(), 1);
}

TEST(Panels, OpenOffersItsTypesAndCancelChangesNothing)
{
    Session s;
    s.must("menu openDocument:");
    const QJsonObject panel = s.must("panel")["panel"].toObject();
    EXPECT_EQ(panel["kind"], "open");
    EXPECT_EQ(panel["types"], (QJsonArray{"tiff", "jpg", "png", "psd"}));
    EXPECT_FALSE(s.must("image")["loaded"].toBool());
}

TEST(SizeDialogs, ResizeKeepsItsFieldsInStep)
{
    Session s;
    s.newImage(400, 300);
    s.must("menu resize:");
    EXPECT_EQ(s.must("get mResize_Width")["value"], 400);
    EXPECT_EQ(s.must("get mResize_Width_P")["value"], 100);
    s.must("set mResize_KeepAspectRatio 1");
    s.must("set mResize_Width 200");
    EXPECT_EQ(s.must("get mResize_Height")["value"], 150);
    EXPECT_EQ(s.must("get mResize_Height_P")["value"], 50);
    s.must("set mResize_Height_P 200");
    EXPECT_EQ(s.must("get mResize_Width")["value"], 800);
    EXPECT_EQ(s.must("get mResize_FileSize")["value"], "1875 KB");
    s.play({"set mResize_KeepAspectRatio 0", "set mResize_Width 20", "set mResize_Height 10",
            "set mResize_ScaleImage 0", "click resize_ok:", "wait"});
    EXPECT_EQ(s.must("image")["width"], 20);
    EXPECT_EQ(s.must("image")["height"], 10);
    EXPECT_EQ(s.state()["mUndoIndex"], 1);
}

TEST(SizeDialogs, QuickSaveProposesTheNextName)
{
    Session s;
    s.newImage(10, 10);
    s.must("menu quickSave:");
    EXPECT_EQ(s.must("get mName_Name_Field")["value"], "My Great Image 1.tiff");
    s.must("set mName_Name_Field \"\"");
    s.must("click name_save:");
    EXPECT_EQ(s.must("alert")["alert"].toObject()["title"], "Please enter a proper file name.");
    s.must("answer OK");
    s.must("set mName_Name_Field \"My Great Image 1.tiff\"");
    s.must("click name_save:");
    s.must("wait");
    EXPECT_TRUE(QFileInfo::exists(s.file("Pictures/Zelpane Image Library/My Great Image 1.tiff")));
    s.must("menu quickSave:");
    EXPECT_EQ(s.must("get mName_Name_Field")["value"], "My Great Image 2.tiff");
    s.must("set mName_Name_Field \"My Great Image 1.tiff\"");
    s.must("click name_save:");
    EXPECT_EQ(s.must("alert")["alert"].toObject()["title"], "File already exists");
    s.must("answer No");
    EXPECT_EQ(s.must("windows")["windows"].toArray()[0].toObject()["name"], "Name");
    s.must("click name_cancel:");
}

namespace
{

const QStringList kOffering{"--no-start-choice", "--offer-recovery"};

/// A picture of that width, painted red in one step, of a program that is killed.
void leaveWork(const QString& home, int width)
{
    Session s({"--no-start-choice"}, home);
    s.newImage(width, 20);
    s.play({"set mColorWell #ff0000", "menu selectAll:", "menu fill:", "wait"});
    s.kill();
}

} // namespace

TEST(Launch, AKilledProgramsPictureIsOfferedAgain)
{
    QTemporaryDir home;
    leaveWork(home.path(), 30);
    {
        Session again(kOffering, home.path());
        const QJsonObject alert = again.must("alert")["alert"].toObject();
        EXPECT_EQ(alert["title"], "Zelpane ended unexpectedly. Do you want to recover your last image?");
        EXPECT_EQ(alert["buttons"], (QJsonArray{"Recover", "Discard", "Later"}));
        again.must("answer Recover");
        EXPECT_EQ(again.must("image")["width"], 30);
        EXPECT_EQ(again.state()["mUndoRedoIndex"], 1);
        EXPECT_EQ(again.pixel(5, 5), (std::vector<int>{255, 255, 0, 0})) << "the very pixels";
        again.must("menu undo:");
        EXPECT_EQ(again.pixel(5, 5)[0], 0) << "the whole history comes back";
        EXPECT_EQ(again.end(), 0);
    }
    Session after(kOffering, home.path());
    EXPECT_TRUE(after.must("alert")["alert"].isNull()) << "a program that quit leaves nothing to recover";
}

TEST(Launch, LeftWorkIsTouchedByNothingButItsAnswer)
{
    QTemporaryDir home;
    leaveWork(home.path(), 30);
    { // A script that was not asked to.
        Session script({"--no-start-choice"}, home.path());
        EXPECT_TRUE(script.must("alert")["alert"].isNull());
        script.newImage(8, 8);
        EXPECT_EQ(script.end(), 0);
    }
    { // A question that nobody answers.
        Session script(kOffering, home.path());
        EXPECT_FALSE(script.must("alert")["alert"].isNull());
        EXPECT_EQ(script.end(), 0);
    }
    for (const char* answer : {"answer Later", "key Escape"}) {
        Session script(kOffering, home.path());
        ASSERT_FALSE(script.must("alert")["alert"].isNull()) << answer;
        script.must(answer);
        EXPECT_TRUE(script.must("alert")["alert"].isNull()) << answer;
        EXPECT_EQ(script.end(), 0);
    }
    { // Another crash.
        Session script(kOffering, home.path());
        script.must("answer Later");
        script.newImage(50, 20);
        script.must("wait");
        script.kill();
    }
    {
        Session script(kOffering, home.path());
        EXPECT_TRUE(script.must("alert")["alert"].toObject()["message"].toString().contains("50 × 20"));
        script.must("answer Discard");
        EXPECT_TRUE(script.must("alert")["alert"].toObject()["message"].toString().contains("30 × 20"));
        script.must("answer Recover");
        EXPECT_EQ(script.must("image")["width"], 30);
    }
}

TEST(Launch, RecoveredPicturesStandInTheOrderOfTheirTime)
{
    QTemporaryDir home;
    leaveWork(home.path(), 30);
    {
        Session next({"--no-start-choice"}, home.path());
        next.newImage(40, 20);
        next.must("wait");
        next.kill();
    }
    Session script(kOffering, home.path());
    script.must("answer Recover");
    script.must("answer Recover");
    EXPECT_EQ(script.must("image")["width"], 40) << "the newest is on screen";
    script.must("menu previousPicture:");
    EXPECT_EQ(script.must("image")["width"], 30);
    EXPECT_EQ(script.pixel(5, 5), (std::vector<int>{255, 255, 0, 0}));
}
