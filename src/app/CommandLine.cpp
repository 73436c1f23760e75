// SPDX-License-Identifier: GPL-3.0-or-later
/// The command line and the colour scheme.
#include "app/CommandLine.h"
#include "base/Simd.h"
#include "desktop/Appearance.h"
#include "desktop/Settings.h"
#include <QApplication>
#include <QPalette>
#include <filesystem>

namespace zp
{

namespace
{

const char* const kHelp = R"(Usage: zelpane [OPTION…] [FILE…]
       zelpane --script FILE [--show | --offscreen] [--no-start-choice] [--offer-recovery] [IMAGE]
       zelpane --thumbnail SIZE SRC DST
       zelpane --batch SRC DST [OPTION…]     (zelpane --batch --help says more)

A bitmap image editor.

  --new               begin with a new image
  --open              begin with the panel that opens an image
  --image-processor   begin with the image processor
  --script FILE       play automation commands from FILE, "-" for standard input
  --show              with --script: the windows are on screen
  --offscreen         needs no display
  --no-start-choice   do not ask for a new or an existing image at the start
  --offer-recovery    ask about work that a crash left also when a script is played
  --thumbnail         write SRC as a PNG picture of at most SIZE pixels a side into DST
  --decode            read pictures for another process; the program starts itself with it
  --help              this text
  --version           the version, the libraries and the vector instructions in use
)";

bool isRequest(const std::string& word) { return word == "--new" || word == "--open" || word == "--image-processor"; }

} // namespace

std::string versionText()
{
    std::string text = "Zelpane " ZP_VERSION "\nLibraries: Qt (";
    text += qVersion();
    text += "), " ZP_LIBRARIES "\nVector targets: ";
    bool first = true;
    for (const std::string& target : vectorTargets()) {
        text += first ? target + " (in use)" : ", " + target;
        first = false;
    }
    return text + "\n";
}

CommandLine parseCommandLine(int argc, char** argv)
{
    CommandLine line;
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (optionsEnded || word == "-" || word.empty() || word[0] != '-') {
            if (word.empty()) continue;
            std::error_code failed;
            const std::filesystem::path path = std::filesystem::absolute(word, failed);
            line.files.push_back(failed ? word : path.string());
        } else if (word == "--") {
            optionsEnded = true;
        } else if (word == "--help" || word == "-h") {
            line.answer = kHelp;
        } else if (word == "--version") {
            line.answer = versionText();
        } else if (isRequest(word)) {
            if (!line.request.empty() && line.request != word) {
                line.error = line.request + " and " + word + " cannot be combined.";
                return line;
            }
            line.request = word;
        } else if (word == "--script") {
            if (++i >= argc) {
                line.error = "--script needs a file.";
                return line;
            }
            line.script = argv[i];
        } else if (word == "--offscreen") {
            line.offscreen = true;
        } else if (word == "--show") {
            line.show = true;
        } else if (word == "--no-start-choice") {
            line.startChoice = false;
        } else if (word == "--offer-recovery") {
            line.offerRecovery = true;
        } else {
            line.error = "unknown option " + word;
            return line;
        }
    }
    return line;
}

void applyColorScheme()
{
    QString scheme = qEnvironmentVariable("ZELPANE_SCHEME");
    if (scheme.isEmpty()) scheme = settings().value("colorScheme", "auto").toString();
    // A desktop that brings a dark palette of its own is left alone.
    // Asked once: later the palette is our own.
    static const bool desktopIsDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const Appearance& desktop = desktopAppearance();
    const bool dark = scheme == "dark" || (scheme != "light" && desktop.dark.value_or(desktopIsDark));
    QPalette p;
    const auto set = [&p](QPalette::ColorRole role, const char* colour, const char* disabled = nullptr) {
        p.setColor(role, QColor(colour));
        if (disabled) p.setColor(QPalette::Disabled, role, QColor(disabled));
    };
    set(QPalette::Window, dark ? "#2b2b2e" : "#f4f4f5");
    set(QPalette::WindowText, dark ? "#e8e8ea" : "#1f1f23", dark ? "#77777d" : "#a3a3a9");
    set(QPalette::Base, dark ? "#1f1f22" : "#ffffff");
    set(QPalette::AlternateBase, dark ? "#262629" : "#f7f7f8");
    set(QPalette::Text, dark ? "#e8e8ea" : "#1f1f23", dark ? "#77777d" : "#a3a3a9");
    set(QPalette::PlaceholderText, dark ? "#77777d" : "#97979e");
    set(QPalette::Button, dark ? "#3a3a3e" : "#fbfbfc");
    set(QPalette::ButtonText, dark ? "#e8e8ea" : "#1f1f23", dark ? "#77777d" : "#a3a3a9");
    set(QPalette::BrightText, "#ffffff");
    set(QPalette::ToolTipBase, dark ? "#3a3a3e" : "#ffffff");
    set(QPalette::ToolTipText, dark ? "#e8e8ea" : "#1f1f23");
    set(QPalette::Light, dark ? "#4a4a4f" : "#ffffff");
    set(QPalette::Midlight, dark ? "#424246" : "#ebebee");
    set(QPalette::Mid, dark ? "#1a1a1c" : "#c9c9ce");
    set(QPalette::Dark, dark ? "#161618" : "#a9a9b0");
    set(QPalette::Shadow, dark ? "#0c0c0d" : "#77777d");
    set(QPalette::Highlight, dark ? "#4f8ef7" : "#2f6fe4", dark ? "#4a4a4f" : "#d4d4d9");
    set(QPalette::HighlightedText, "#ffffff", dark ? "#77777d" : "#7d7d84");
    if (desktop.accent) {
        p.setColor(QPalette::Highlight, *desktop.accent);
        p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(dark ? "#4a4a4f" : "#d4d4d9"));
        // The letters on it are of what stands out more.
        const bool light = qGray(desktop.accent->rgb()) > 150;
        p.setColor(QPalette::HighlightedText, QColor(light ? "#1f1f23" : "#ffffff"));
        p.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(dark ? "#77777d" : "#7d7d84"));
    }
    set(QPalette::Link, dark ? "#7fb0ff" : "#2160d0");
    set(QPalette::LinkVisited, dark ? "#b79bff" : "#6c4bb8");
    QApplication::setPalette(p);
    // The style makes the rim of these boxes by darkening what they stand on, which is next to nothing on dark ground.
    // They paint no ground themselves, so that theirs may say what the rim is to be.
    const auto setRim = [&](const char* widget, int darkened) {
        QPalette own = p;
        own.setColor(QPalette::Window, QColor(dark ? "#8c8c93" : "#7b7b82").lighter(darkened));
        own.setColor(QPalette::Disabled, QPalette::Window, QColor(dark ? "#55555a" : "#c3c3c8").lighter(darkened));
        QApplication::setPalette(own, widget);
    };
    setRim("QCheckBox", 120);
    setRim("QRadioButton", 150);
}

} // namespace zp
