// SPDX-License-Identifier: GPL-3.0-or-later
/// What the gate promises, seen through the automation language: gestures that commands end, pieces that are settled,
/// masks that are what the outline says, late results that are dropped.
#include "support/Session.h"
#include <QFileInfo>
#include <QImage>
#include <functional>

namespace
{

using namespace zp::test;
using Bytes = std::vector<int>;

const Bytes kWhite{255, 255, 255, 255}, kRed{255, 255, 0, 0}, kGreen{255, 0, 255, 0}, kBlue{255, 0, 0, 255},
    kNothing{0, 0, 0, 0};

class Gate : public testing::Test
{
protected:
    /// A white picture of 100 by 80 pixels, its step written.
    Gate()
    {
        run.newImage(100, 80);
        run.play({"set mColorWell #ffffff", "menu selectAll:", "menu fill:", "wait",
                  "menu selectNone:", "set mColorWell #ff0000", "set mSizeField 10", "sounds"});
    }
    void play(std::initializer_list<QString> lines) { run.play(lines); }
    QJsonValue state(const char* field) { return run.state()[field]; }
    int position() { return state("mUndoRedoIndex").toInt(); }
    bool floats() { return state("floating").toBool(); }
    QJsonArray box(const char* which = "selection")
    {
        return run.must(QString("path %1").arg(which))["path"].toObject()["bounds"].toArray();
    }
    int mask(int x, int y) { return run.must(QString("mask %1 %2").arg(x).arg(y))["mask"].toInt(); }
    QByteArray picture()
    {
        run.must("wait");
        run.must("write-bitmap shot.pam");
        QFile file(run.file("shot.pam"));
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        return file.readAll();
    }
    void rectangle(int x0, int y0, int x1, int y1)
    {
        run.must(QString("press %1 %2").arg(x0).arg(y0));
        run.must(QString("drag %1 %2").arg(x1).arg(y1));
        run.must(QString("release %1 %2").arg(x1).arg(y1));
    }
    /// Puts a green picture of 10 by 10 pixels on the pasteboard.
    void copyGreen()
    {
        play({"set mColorWell #00ff00"});
        rectangle(80, 60, 90, 70);
        play({"menu fill:", "wait", "menu copy:", "menu selectNone:", "menu undo:", "wait", "set mColorWell #ff0000",
              "sounds"});
    }

    Session run;
};

QJsonArray numbers(std::initializer_list<double> list)
{
    QJsonArray array;
    for (const double v : list) array.append(v);
    return array;
}

// ---- commands while a button is down --------------------------------------------------------------------------------

struct Command {
    const char* name;
    const char* line;
};

class GateCommand : public Gate, public testing::WithParamInterface<Command>
{
};

TEST_P(GateCommand, EndsAPencilStrokeAsItsReleaseWould)
{
    play({"key 5", "press 10 10", "drag 50 10"});
    run.must(GetParam().line);
    EXPECT_EQ(state("mIsMouseDown").toInt(), 0);
    play({"drag 50 60", "release 50 60", "wait"});
    EXPECT_EQ(run.pixel(50, 40), kWhite) << "the gesture went on behind the command";
}

INSTANTIATE_TEST_SUITE_P(Commands, GateCommand,
                         testing::Values(Command{"Undo", "menu undo:"}, Command{"Turn", "menu flipH:"},
                                         Command{"SelectAll", "menu selectAll:"}, Command{"Copy", "menu copy:"},
                                         Command{"Key", "key Return"}, Command{"Sent", "send makeBGBlack"}),
                         [](const auto& of) { return std::string(of.param.name); });

TEST_F(Gate, UndoDuringAPencilStrokeTakesTheWholeStrokeBack)
{
    const QByteArray before = picture();
    play({"key 5", "press 10 10", "drag 50 10", "menu undo:", "wait"});
    EXPECT_EQ(picture(), before);
    play({"release 50 10", "menu redo:", "wait"});
    EXPECT_NE(run.pixel(30, 10), kWhite) << "the stroke that was begun is a step like any other";
}

TEST_F(Gate, UndoDuringABrushStrokeLosesNoRedo)
{
    play({"key 4", "press 10 40", "drag 90 40"});
    const int before = position();
    play({"menu undo:", "wait", "release 90 40", "wait"});
    EXPECT_EQ(position(), before);
    EXPECT_EQ(state("mUndoIndex").toInt(), before + 1);
    EXPECT_EQ(run.pixel(50, 40), kWhite);
    play({"menu redo:", "wait"});
    EXPECT_NE(run.pixel(50, 40), kWhite);
}

// ---- Escape ---------------------------------------------------------------------------------------------------------

struct Drag {
    const char* name;
    std::vector<const char*> lines; ///< up to the drag that Escape takes back
};

class GateEscape : public Gate, public testing::WithParamInterface<Drag>
{
};

TEST_P(GateEscape, TakesADragBackWithoutAStep)
{
    rectangle(20, 20, 60, 60);
    play({"wait", "sounds"});
    const QByteArray before = picture();
    const QJsonObject was = run.state();
    const QJsonArray outline = run.must("path")["path"].toObject()["elements"].toArray();
    for (const char* line : GetParam().lines) run.must(line);
    play({"key Escape", "modifiers", "wait"});
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(run.must("path")["path"].toObject()["elements"].toArray(), outline) << "the selection stays";
    const QJsonObject now = run.state();
    for (const char* field : {"mUndoIndex", "mUndoRedoIndex", "mIsMouseDown", "mMove", "floating", "aux", "mPt1",
                              "mTransformRecord", "mColor", "mPolygonLasso"})
        EXPECT_EQ(now[field], was[field]) << field;
    play({"release 70 70", "wait"});
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(position(), was["mUndoRedoIndex"].toInt());
}

INSTANTIATE_TEST_SUITE_P(
    Drags, GateEscape,
    testing::Values(
        Drag{"Brush", {"key 4", "press 25 40", "drag 55 40"}}, Drag{"Pencil", {"key 5", "press 25 40", "drag 55 40"}},
        Drag{"Eraser", {"key 6", "press 25 40", "drag 55 40"}},
        Drag{"CloneStamp",
             {"key 0", "modifiers option", "press 5 5", "release 5 5", "modifiers", "press 30 30", "drag 40 40"}},
        Drag{"Marquee", {"key 1", "press 70 70", "drag 90 75"}},
        Drag{"AddedMarquee", {"key 1", "modifiers shift", "press 70 70", "drag 90 75"}},
        Drag{"Lasso", {"key 2", "press 70 70", "drag 90 75"}}, Drag{"Wand", {"key 3", "press 70 70"}},
        Drag{"Move", {"key 1", "press 30 30", "drag 40 35"}},
        Drag{"LiftedMove", {"key 1", "modifiers command", "press 30 30", "drag 40 35"}},
        Drag{"LiftedHole", {"key 1", "modifiers command shift", "press 30 30", "drag 40 35"}},
        Drag{"Eyedropper", {"key 8", "press 30 30", "drag 40 40"}}),
    [](const auto& of) { return std::string(of.param.name); });

TEST_F(Gate, EscapeBetweenThePolygonsClicksDropsThePolygonOnly)
{
    rectangle(20, 20, 60, 60);
    play({"key 2", "modifiers control shift", "press 70 10", "release 70 10", "modifiers", "press 90 10",
          "release 90 10", "press 90 30", "release 90 30"});
    EXPECT_TRUE(state("mPolygonLasso").toBool());
    play({"key Escape"});
    EXPECT_FALSE(state("mPolygonLasso").toBool());
    EXPECT_EQ(box(), numbers({20, 20, 40, 40})) << "what waited to be joined is the selection again";
    play({"key Escape"});
    EXPECT_FALSE(state("selection").toBool());
    EXPECT_EQ(run.sounds().count("Frog"), 2);
}

TEST_F(Gate, EscapeWithoutAGestureDropsTheSelectionWithItsSound)
{
    rectangle(20, 20, 60, 60);
    play({"sounds", "key Escape"});
    EXPECT_FALSE(state("selection").toBool());
    EXPECT_TRUE(run.sounds().contains("Frog"));
}

// ---- the mask is what the outline says ------------------------------------------------------------------------------

TEST_F(Gate, TheMaskIsClearWhenNothingIsSelected)
{
    rectangle(20, 20, 60, 60);
    EXPECT_EQ(mask(30, 30), 0);
    EXPECT_FALSE(state("mSelectionMaskClear").toBool());
    play({"menu selectNone:"});
    EXPECT_EQ(mask(30, 30), 255);
    EXPECT_TRUE(state("mSelectionMaskClear").toBool());
}

TEST_F(Gate, AWandWithShiftAddsToWhatIsSelectedNowAndNothingElse)
{
    struct Between {
        const char* name;
        std::vector<const char*> lines;
        bool oldPlace, movedPlace; ///< whether (21, 21) and (61, 21) are selected in the end
    };
    // A red square is what the wand finds.
    rectangle(70, 50, 80, 60);
    play({"menu fill:", "wait", "menu selectNone:", "send saveSelection: nowhere", "set mToleranceSlider 10"});
    const Between cases[] = {
        {"SelectNone", {"menu selectNone:"}, false, false},
        {"Nudge", {"key Left", "key Left"}, false, false},
        {"Moved", {"press 25 25", "drag 65 25", "release 65 25"}, false, true},
        {"Load",
         {"send saveSelection: kept", "menu selectNone:", "key 1", "press 1 1", "drag 5 5", "release 5 5",
          "send loadSelection: kept"},
         true,
         false},
    };
    for (const Between& c : cases) {
        SCOPED_TRACE(c.name);
        play({"key 1", "menu selectAll:", "menu selectNone:"});
        rectangle(20, 20, 30, 30);
        for (const char* line : c.lines) run.must(line);
        play({"key 3", "modifiers shift", "press 75 55", "release 75 55", "modifiers"});
        EXPECT_EQ(mask(75, 55), 0);
        EXPECT_EQ(mask(29, 21) == 0, c.oldPlace);
        EXPECT_EQ(mask(61, 21) == 0, c.movedPlace);
        EXPECT_EQ(mask(50, 70), 255);
        play({"menu selectNone:"});
    }
}

// ---- pieces that float ----------------------------------------------------------------------------------------------

TEST_F(Gate, CopyThenFillShowsTheFillAndStaysSo)
{
    rectangle(20, 20, 60, 60);
    play({"menu copy:", "set mColorWell #00ff00", "menu fill:", "wait"});
    EXPECT_EQ(run.pixel(30, 30), kGreen);
    EXPECT_FALSE(floats());
    EXPECT_EQ(box(), numbers({20, 20, 40, 40})) << "the outline stays";
    play({"key Return", "key Return", "wait"});
    EXPECT_EQ(run.pixel(30, 30), kGreen);
}

struct Settling {
    const char* name;
    std::vector<const char*> lines;
    int x, y; ///< where the pasted piece's corner is found afterwards
};

class GateSettles : public Gate, public testing::WithParamInterface<Settling>
{
};

TEST_P(GateSettles, APastedPieceBecomesPartOfThePictureInTheSameStep)
{
    copyGreen();
    play({"menu paste:"});
    ASSERT_TRUE(floats());
    const int before = position();
    for (const char* line : GetParam().lines) run.must(line);
    play({"wait"});
    EXPECT_FALSE(floats());
    EXPECT_EQ(run.pixel(GetParam().x, GetParam().y), kGreen);
    EXPECT_EQ(position(), before + 1);
    play({"menu undo:", "wait"});
    EXPECT_EQ(run.pixel(3, 3), kWhite);
    EXPECT_EQ(run.must("image")["width"].toInt(), 100);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, GateSettles,
    testing::Values(Settling{"Stroke", {"set mSizeField 2", "menu stroke:"}, 5, 5},
                    Settling{"Pencil", {"set mSizeField 2", "key 5", "press 2 9", "drag 6 9", "release 6 9"}, 3, 3},
                    Settling{"Brush", {"key 4", "press 2 9", "drag 6 9", "release 6 9"}, 3, 3},
                    Settling{"Eraser", {"set mSizeField 2", "key 6", "press 2 9", "drag 6 9", "release 6 9"}, 3, 3},
                    Settling{"Bucket", {"key 7", "press 50 50", "release 50 50"}, 3, 3},
                    Settling{"Flip", {"menu flipH:"}, 95, 5}, Settling{"Turn", {"menu rotateCW:"}, 75, 5},
                    Settling{"Resize", {"send setImageSize:scale: 200 160 0"}, 5, 5},
                    Settling{"Crop", {"menu cropToSelection:"}, 5, 5}),
    [](const auto& of) { return std::string(of.param.name); });

TEST_F(Gate, ASmartFillAnchorsWhatFloatsInItsOwnStep)
{
    copyGreen();
    const QByteArray white = picture();
    play({"menu paste:"});
    const int before = position();
    play({"menu smartFill:", "click closeMe:"});
    EXPECT_TRUE(floats()) << "nothing was filled";
    EXPECT_EQ(position(), before);
    play({"menu smartFill:", "click run:", "wait"});
    EXPECT_FALSE(floats());
    EXPECT_EQ(position(), before + 1);
    EXPECT_EQ(run.pixel(3, 3), kWhite) << "from the surroundings";
    play({"menu undo:", "wait"});
    EXPECT_EQ(picture(), white);
}

TEST_F(Gate, DeleteAndCutOfAPieceThatWasPastedLeaveThePictureBelow)
{
    copyGreen();
    const QByteArray before = picture();
    for (const char* command : {"menu delete:", "menu cut:"}) {
        SCOPED_TRACE(command);
        play({"menu paste:"});
        run.must(command);
        EXPECT_FALSE(floats());
        EXPECT_EQ(picture(), before);
    }
}

TEST_F(Gate, DeleteOfAPieceThatWasOnlyLiftedClearsItsPixels)
{
    rectangle(20, 20, 60, 60);
    play({"key Return", "menu delete:", "wait"});
    EXPECT_FALSE(floats());
    EXPECT_EQ(run.pixel(30, 30), kNothing);
}

TEST_F(Gate, ASavedFileHoldsTheFloatingPieceWhichGoesOnFloating)
{
    copyGreen();
    play({"menu paste:", "send saveImageAsPNG: with-piece.png", "wait"});
    EXPECT_TRUE(floats());
    EXPECT_EQ(run.pixel(3, 3), kWhite) << "the picture itself is not touched";
    play({"send setImagePath: with-piece.png", "wait"});
    EXPECT_EQ(run.pixel(3, 3), kGreen);
}

TEST_F(Gate, WhatEndsAPieceEndsItsClipAndItsRecordWithIt)
{
    const char* const enders[] = {"menu selectAll:",
                                  "menu selectNone:",
                                  "menu flipV:",
                                  "menu cropToSelection:",
                                  "send setImageSize:scale: 90 70 0",
                                  "send newImageWithSize: 50 50"};
    for (const char* ender : enders) {
        SCOPED_TRACE(ender);
        run.newImage(100, 80);
        copyGreen();
        rectangle(10, 10, 60, 60);
        play({"menu pasteInto:"});
        ASSERT_TRUE(state("pasteInto").toBool());
        run.must(ender);
        run.must("wait");
        EXPECT_FALSE(floats());
        EXPECT_FALSE(state("pasteInto").toBool());
    }
}

TEST_F(Gate, APressOfTheTextToolEndsAFloatingPiece)
{
    rectangle(20, 20, 60, 60);
    play({"key Return", "key 9", "press 80 70"});
    EXPECT_FALSE(floats());
    play({"click cancel:", "release 80 70"});
    EXPECT_FALSE(floats());
}

TEST_F(Gate, ACommandPressOnAFloatingPieceMovesItAndLiftsNothingAgain)
{
    rectangle(20, 20, 40, 40);
    play({"menu fill:", "wait", "modifiers command", "press 30 30", "drag 60 30", "release 60 30", "press 60 30",
          "drag 70 30", "release 70 30", "modifiers", "key Return", "wait"});
    EXPECT_EQ(run.pixel(70, 30), kRed) << "the piece that was lifted first arrived";
    EXPECT_EQ(run.pixel(30, 30), kRed);
}

class GateTool : public Gate, public testing::WithParamInterface<int>
{
};

TEST_P(GateTool, CommandAndShiftLeaveAHoleInsideTheOutline)
{
    rectangle(20, 20, 40, 40);
    const int before = position();
    run.must(QString("key %1").arg(GetParam()));
    play({"modifiers command shift", "press 30 30", "drag 70 30", "release 70 30", "modifiers", "wait"});
    EXPECT_EQ(run.pixel(30, 30), kNothing);
    EXPECT_TRUE(floats());
    EXPECT_FALSE(state("aux").toBool());
    EXPECT_EQ(position(), before + 1) << "a hole is a change, and a change is a step";
    play({"key Return", "wait"});
    EXPECT_EQ(run.pixel(70, 30), kWhite);
}

INSTANTIATE_TEST_SUITE_P(Keys, GateTool, testing::Values(1, 2, 3, 9));

TEST_F(Gate, CommandAndShiftOutsideTheOutlineAddASquare)
{
    rectangle(20, 20, 40, 40);
    play({"modifiers command shift", "press 60 50", "drag 75 60", "release 75 60", "modifiers"});
    EXPECT_EQ(box(), numbers({20, 20, 50, 40}));
}

// ---- painting limited by the selection ------------------------------------------------------------------------------

TEST_F(Gate, BrushAndEraserPaintInsideTheSelectionOnly)
{
    rectangle(20, 20, 60, 60);
    play({"key 4", "press 10 40", "drag 90 40", "release 90 40", "wait"});
    EXPECT_NE(run.pixel(40, 40), kWhite);
    EXPECT_EQ(run.pixel(12, 40), kWhite);
    EXPECT_EQ(run.pixel(80, 40), kWhite);
    play({"key 6", "press 10 50", "drag 90 50", "release 90 50", "wait"});
    EXPECT_EQ(run.pixel(40, 50), kNothing);
    EXPECT_EQ(run.pixel(12, 50), kWhite);
    EXPECT_EQ(run.pixel(80, 50), kWhite);
}

TEST_F(Gate, APaintingToolClippedToNothingBeeps)
{
    play({"menu selectAll:", "menu selectInverse:", "wait"}); // an outline that holds nothing
    const int before = position();
    for (const char* tool : {"key 4", "key 5", "key 6", "key 7", "key 0"}) {
        SCOPED_TRACE(tool);
        play({"sounds"});
        run.must(tool);
        play({"press 40 40", "drag 50 50", "release 50 50", "wait"});
        EXPECT_TRUE(run.sounds().contains("beep"));
        EXPECT_EQ(run.pixel(45, 45), kWhite);
    }
    EXPECT_EQ(position(), before);
}

TEST_F(Gate, TheEraserShowsBeforeTheReleaseWhatItLeaves)
{
    play({"menu selectAll:", "menu fill:", "wait", "menu selectNone:"});
    rectangle(20, 20, 60, 60);
    play({"key 6", "press 10 40", "drag 90 40", "move 5 5", "grab during.png canvas"});
    play({"drag 90 40", "release 90 40", "wait", "menu selectNone:", "move 5 5", "grab after.png canvas"});
    const QImage during(run.file("during.png")), after(run.file("after.png"));
    for (int x = 0; x < 100; x += 3) // beside the outline's ants
    {
        if (std::abs(x - 20) > 2 && std::abs(x - 60) > 2) {
            EXPECT_EQ(during.pixel(x, 40), after.pixel(x, 40)) << x;
        }
    }
}

// ---- selections -----------------------------------------------------------------------------------------------------

TEST_F(Gate, ALassoOfFewerThanFourElementsDropsTheSelection)
{
    play({"key 2", "press 10 10", "drag 30 10", "release 30 10"});
    EXPECT_FALSE(state("selection").toBool()) << "a line and its closing enclose nothing";
    EXPECT_TRUE(run.sounds().contains("Frog"));
    play({"press 10 10", "drag 30 10", "drag 30 30", "release 30 30"});
    EXPECT_TRUE(state("selection").toBool());
}

TEST_F(Gate, APolygonJoinsTheOldOutlineAtReturn)
{
    struct Join {
        const char *name, *keys;
        bool inside, outside; ///< (22, 22), and (75, 15)
    };
    for (const Join& join : {Join{"Add", "modifiers control shift", true, true},
                             Join{"Subtract", "modifiers control option", true, false}}) {
        SCOPED_TRACE(join.name);
        play({"key 1", "menu selectAll:", "menu selectNone:"});
        rectangle(20, 20, 60, 60);
        run.must("key 2");
        run.must(join.keys);
        play({"press 50 10", "release 50 10", "modifiers", "press 90 10", "release 90 10", "press 90 40",
              "release 90 40", "press 50 40", "release 50 40", "press 50 10", "release 50 10"});
        EXPECT_TRUE(state("aux").toBool()) << "the old outline waits";
        play({"key Return"});
        EXPECT_FALSE(state("aux").toBool());
        play({"send clearSelectionMask", "send selectionPathToMask"});
        EXPECT_EQ(mask(22, 22) == 0, join.inside);
        EXPECT_EQ(mask(75, 15) == 0, join.outside);
        EXPECT_EQ(mask(55, 30) == 0, join.outside) << "what both cover";
        play({"menu selectNone:"});
    }
}

TEST_F(Gate, AClickMeansThePixelUnderThePointerAtEveryZoom)
{
    // One red pixel among white ones.
    play({"send setColor:atPoint: 0x0000ffff 40 30", "set mToleranceSlider 10", "set mColorWell #0000ff"});
    for (const char* zoom : {"25%", "100%", "400%", "1600%"}) {
        SCOPED_TRACE(zoom);
        run.must(QString("set mZoomPopUp %1").arg(zoom));
        play({"key 3", "press 40.9 30.9", "release 40.9 30.9"});
        EXPECT_EQ(box(), numbers({40, 30, 1, 1}));
        play({"menu selectNone:"});
    }
    play({"key 7", "press 40.9 30.9", "release 40.9 30.9", "wait"});
    EXPECT_EQ(run.pixel(40, 30), kBlue);
    EXPECT_EQ(run.pixel(41, 31), kWhite);
    play({"set mColorWell #00ff00", "send floodFillScanlineStackFast: 39.6 29.6", "wait"});
    EXPECT_EQ(run.pixel(40, 30), kGreen) << "a script's own point is rounded";
}

TEST_F(Gate, WhatTheStampsPressWasDecidesNotTheKeysAtItsRelease)
{
    const int before = position();
    play({"key 0", "modifiers option", "press 10 10", "modifiers", "drag 12 12", "release 12 12", "wait"});
    EXPECT_EQ(position(), before) << "a reference click leaves no step";
    play({"press 50 50", "drag 55 55", "modifiers option", "release 55 55", "modifiers", "wait"});
    EXPECT_EQ(position(), before + 1) << "pixels were stamped";
    play({"press 50 50", "release 50 50", "wait"});
    EXPECT_EQ(position(), before + 1) << "nothing was stamped";
}

TEST_F(Gate, EmptyStepsThatHaveAlwaysBeenThereStay)
{
    int before = position();
    play({"key 4", "press 50 50", "release 50 50", "wait"});
    EXPECT_EQ(position(), ++before) << "a brush click";
    play({"set mToleranceSlider 0", "key 7", "press 50 50", "release 50 50", "wait"});
    EXPECT_EQ(position(), ++before) << "a bucket that finds nothing";
}

TEST_F(Gate, CopyWithoutASelectionTakesTheWholeImage)
{
    for (const QJsonValue& item : run.must("menus")["items"].toArray()) {
        if (item["action"].toString() == "copy:") {
            EXPECT_TRUE(item["enabled"].toBool());
        }
    }
    play({"menu copy:", "menu newDocument:"});
    EXPECT_EQ(run.must("get mNew_Width")["value"].toInt(), 100);
    EXPECT_EQ(run.must("get mNew_Height")["value"].toInt(), 80);
}

TEST_F(Gate, AScaleOfNothingIsRefusedForItselfAlone)
{
    rectangle(20, 20, 60, 60);
    play({"menu transform:", "set mTransform_Scale_Field 150", "sounds", "send transform_set: 0 30"});
    const QJsonObject record = state("mTransformRecord").toObject();
    EXPECT_EQ(record["scale"].toDouble(), 1.5);
    EXPECT_EQ(record["rotate"].toDouble(), 30);
    EXPECT_TRUE(run.sounds().contains("beep"));
    play({"set mTransform_Scale_Slider 0"});
    EXPECT_NE(state("mTransformRecord").toObject()["scale"].toDouble(), 0);
}

TEST_F(Gate, ReselectBringsTheLastDroppedSelectionBack)
{
    Session fresh;
    fresh.newImage(10, 10);
    EXPECT_EQ(fresh.failure("menu reselect:"), "disabled");
    rectangle(20, 20, 60, 60);
    for (const std::vector<const char*>& drop :
         {std::vector<const char*>{"menu selectNone:"}, {"key Escape"}, {"press 80 70", "release 80 70"}}) {
        for (const char* line : drop) run.must(line);
        EXPECT_FALSE(state("selection").toBool());
        play({"menu reselect:"});
        EXPECT_EQ(box(), numbers({20, 20, 40, 40}));
        EXPECT_TRUE(state("selectionTimer").toBool());
    }
}

// ---- late results ---------------------------------------------------------------------------------------------------

class GateLate : public Gate, public testing::WithParamInterface<Command>
{
};

TEST_P(GateLate, ASmartFillOfAPictureThatIsGoneIsDroppedWithoutAStep)
{
    // So large that the fill is still under way when the command comes, also on a busy machine.
    run.newImage(500, 400);
    play({"menu selectAll:", "menu fill:", "menu selectNone:", "send saveImageAsPNG: other.png"});
    rectangle(20, 20, 460, 360);
    play({"menu smartFill:", "click run:"});
    run.must(GetParam().line);
    // The command's own step, if it leaves one; an opened picture's first comes by a timer.
    for (int i = 0; i < 200 && state("mUndoThreadRunning").toBool(); ++i) run.must("sleep 0.01");
    const int before = position();
    run.must("write-bitmap then.pam");
    const QByteArray now = picture(); // waits
    QFile then(run.file("then.pam"));
    ASSERT_TRUE(then.open(QFile::ReadOnly));
    EXPECT_EQ(now, then.readAll());
    EXPECT_TRUE(run.must("get mTimeField")["value"].toString().contains("dropped"));
    EXPECT_LE(position(), std::max(before, 0));
}

INSTANTIATE_TEST_SUITE_P(Commands, GateLate,
                         testing::Values(Command{"Flip", "menu flipH:"}, Command{"Turn", "menu rotateCW:"},
                                         Command{"Crop", "menu cropToSelection:"},
                                         Command{"Resize", "send setImageSize:scale: 100 80 1"},
                                         Command{"Undo", "menu undo:"},
                                         Command{"Open", "send setImagePath: other.png"}),
                         [](const auto& of) { return std::string(of.param.name); });

// ---- what the window says -------------------------------------------------------------------------------------------

TEST_F(Gate, TheSelectionsFieldIsNeverStale)
{
    const auto info = [this] { return run.must("get mInfoField")["value"].toString(); };
    play({"menu selectAll:"});
    EXPECT_EQ(info(), "{{0, 0}, {100, 80}}");
    play({"menu selectNone:"});
    EXPECT_EQ(info(), "");
    copyGreen();
    play({"menu paste:"});
    EXPECT_EQ(info(), "{{0, 0}, {10, 10}}");
    play({"menu cropToSelection:", "wait"});
    EXPECT_EQ(info(), "");
}

TEST_F(Gate, TheTitleFollowsTheFile)
{
    const auto title = [this] { return run.must("windows")["windows"].toArray().last()["title"].toString(); };
    play({"send saveImageAsPNG: named.png"});
    EXPECT_EQ(title(), "named.png — Zelpane");
    ASSERT_TRUE(QFile::remove(run.file("named.png")));
    run.must("menus"); // the menu looks for the file
    EXPECT_EQ(title(), "Untitled — Zelpane");
}

// ---- what the driver refuses ----------------------------------------------------------------------------------------

TEST_F(Gate, PointsThatAnOperationCannotTakeAreRefused)
{
    for (const char* line :
         {"send setColor:atPoint: 1 100 0", "send setColor:atPoint: 1 0 -1", "send setColor:atPoint: 1 1e12 0",
          "send magicWand: 100 0", "send magicWand: -3 0", "send floodFillScanlineStackFast: 0 80"})
        EXPECT_EQ(run.failure(line), "outside the image") << line;
    EXPECT_EQ(run.failure("send setColor:atPoint: 1 nan 0"), "argument 2 is not a number");
    EXPECT_EQ(run.failure("move 1e308 -1"), "not a number");
    play({"send setColor:atPoint: 0x0000ffff 99 79"});
    EXPECT_EQ(run.pixel(99, 79), kRed);
}

TEST_F(Gate, AFolderWithContentIsAskedAboutBeforeItIsDeleted)
{
    rectangle(20, 20, 60, 60);
    play({"send saveSelection: \"Library/Application Support/Zelpane/Selections/kept/inside\"",
          "menu loadSelection:", "set mLoadSelection_PopUp kept", "click loadSelection_delete:"});
    EXPECT_EQ(run.must("alert")["alert"].toObject()["buttons"].toArray(), (QJsonArray{"Delete", "Cancel"}));
    play({"answer Cancel"});
    const QString inside = run.file("Library/Application Support/Zelpane/Selections/kept/inside");
    EXPECT_TRUE(QFile::exists(inside));
    play({"click loadSelection_delete:", "answer Delete"});
    EXPECT_FALSE(QFile::exists(inside));
}

TEST_F(Gate, ASelectionThatCannotBeSavedSaysSo)
{
    rectangle(20, 20, 60, 60);
    play({"send saveSelection: /proc/nowhere/kept"});
    EXPECT_EQ(run.must("alert")["alert"].toObject()["title"].toString(), "The selection could not be saved.");
}

} // namespace
