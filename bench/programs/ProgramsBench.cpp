// SPDX-License-Identifier: GPL-3.0-or-later
/// Whole programs beside whole programs: from the start until the window is there, what is resident with a picture
/// open, a folder of photographs made smaller. Windows are those of a display of this program's own; a program that is
/// not installed is an error of its row.
#include "support/CloudsJPEG.h"
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <csignal>
#include <map>
#include <thread>
#include <unistd.h>
#include <xcb/xcb.h>

namespace
{

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// What one who opens an editor takes for its window; tool bars that come before it are smaller.
constexpr int kWindowWidth = 400, kWindowHeight = 300;

double seconds(Clock::duration time) { return std::chrono::duration<double>(time).count(); }

const QString& folder()
{
    static const QTemporaryDir made;
    static const QString path = made.path();
    return path;
}

/// A folder of photographs of a kind: as cameras write them, or made for the web, which come scan after scan.
QString photographs(const QString& kind)
{
    const QString path = folder() + "/" + kind;
    if (QDir(path).exists()) return path;
    QDir().mkpath(path);
    const QDir all("/usr/share/backgrounds");
    for (const QString& name : all.entryList({"*_by_*.jpg"}, QDir::Files))
        QProcess::execute("jpegtran", {"-copy", "all", kind == "web" ? "-progressive" : "-optimize", "-outfile",
                                       path + "/" + name, all.filePath(name)});
    return path;
}

/// The display, and who is told of its windows.
class Display
{
public:
    Display()
    {
        mServer.setStandardErrorFile(QProcess::nullDevice());
        mServer.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-noreset", "-nolisten", "tcp"});
        if (!mServer.waitForStarted() || !mServer.waitForReadyRead()) return;
        mName = ":" + mServer.readLine().trimmed();
        mConnection = xcb_connect(mName.constData(), nullptr);
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(mConnection)).data;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(mConnection, screen->root, XCB_CW_EVENT_MASK, &events);
        xcb_flush(mConnection);
    }
    ~Display()
    {
        if (mConnection) xcb_disconnect(mConnection);
        mServer.kill();
        mServer.waitForFinished();
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    bool isThere() const { return mConnection && !xcb_connection_has_error(mConnection); }
    const QByteArray& name() const { return mName; }
    void forget()
    {
        while (xcb_generic_event_t* const event = xcb_poll_for_event(mConnection)) std::free(event);
    }
    /// @return false when none came up for a long time
    bool awaitWindow()
    {
        for (const auto end = Clock::now() + 20s; Clock::now() < end;) {
            xcb_generic_event_t* const event = xcb_poll_for_event(mConnection);
            if (!event) {
                std::this_thread::sleep_for(200us);
                continue;
            }
            const bool found = isWindow(*event);
            std::free(event);
            if (found) return true;
        }
        return false;
    }

private:
    bool isWindow(const xcb_generic_event_t& event)
    {
        if ((event.response_type & 127) != XCB_MAP_NOTIFY) return false;
        const auto& mapped = reinterpret_cast<const xcb_map_notify_event_t&>(event);
        xcb_get_geometry_reply_t* const place =
            xcb_get_geometry_reply(mConnection, xcb_get_geometry(mConnection, mapped.window), nullptr);
        const bool large = place && place->width >= kWindowWidth && place->height >= kWindowHeight;
        std::free(place);
        return large && !mapped.override_redirect;
    }

    QProcess mServer;
    QByteArray mName;
    xcb_connection_t* mConnection = nullptr;
};

Display& display()
{
    static Display shown;
    return shown;
}

/// Of the process and its children; what several share counts once.
double residentMegabytes(qint64 process)
{
    QFile file(QString("/proc/%1/smaps_rollup").arg(process));
    if (!file.open(QFile::ReadOnly)) return 0;
    double all = 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("Pss:")) all += line.simplified().split(' ').value(1).toDouble() * 1024 / 1e6;
    QFile children(QString("/proc/%1/task/%1/children").arg(process));
    if (children.open(QFile::ReadOnly))
        for (const QByteArray& child : children.readAll().simplified().split(' '))
            if (!child.isEmpty()) all += residentMegabytes(child.toLongLong());
    return all;
}

struct Start {
    double seconds = 0, megabytes = 0; ///< until the window was there; resident two seconds later
    bool there = false;
};

void silence(QProcess& program)
{
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
}

Start startOnce(const QStringList& command)
{
    display().forget();
    QProcess program;
    silence(program);
    Start result;
    const auto start = Clock::now();
    program.start(command.first(), command.mid(1));
    result.there = program.waitForStarted() && display().awaitWindow();
    result.seconds = seconds(Clock::now() - start);
    if (result.there) std::this_thread::sleep_for(2s);
    result.megabytes = residentMegabytes(program.processId());
    program.terminate();
    if (!program.waitForFinished(3000)) program.kill();
    program.waitForFinished();
    std::this_thread::sleep_for(100ms);
    return result;
}

void window(benchmark::State& state, const QStringList& command)
{
    if (!display().isThere()) return state.SkipWithError("there is no Xvfb");
    Start last = startOnce(command); // its files come into memory
    for (auto _ : state) {
        if (last.there) last = startOnce(command);
        if (!last.there) return state.SkipWithError("no window came up");
        state.SetIterationTime(last.seconds);
    }
    state.counters["MB"] = last.megabytes;
}

/// A folder of photographs made to fit 1024 x 768 as JPEG.
void batch(benchmark::State& state, const QString& kind,
           const std::function<bool(const QString& from, const QString& to)>& make)
{
    const QString from = photographs(kind);
    const int count = int(QDir(from).entryList(QDir::Files).size());
    if (count == 0) return state.SkipWithError("there are no photographs");
    for (auto _ : state) {
        const QTemporaryDir to;
        const auto start = Clock::now();
        const bool made = make(from, to.path());
        state.SetIterationTime(seconds(Clock::now() - start));
        if (!made || QDir(to.path()).entryList({"*.jpg"}, QDir::Files).size() != count)
            return state.SkipWithError("it did not make all of them");
    }
    state.counters["photographs"] = count;
}

bool byZelpane(const QString& from, const QString& to)
{
    QProcess program;
    silence(program);
    program.start(ZP_PROGRAM, {"--batch", from, to, "--fit", "1024x768", "--jpeg"});
    return program.waitForFinished() && program.exitCode() == 0;
}

/// As it is fastest: told of the size when it reads, two processes for two processors.
bool byGraphicsMagick(const QString& from, const QString& to)
{
    const QStringList names = QDir(from).entryList(QDir::Files);
    const int jobs = std::max(1, int(std::thread::hardware_concurrency()));
    std::vector<std::unique_ptr<QProcess>> programs;
    for (int job = 0; job < jobs; ++job) {
        programs.push_back(std::make_unique<QProcess>());
        QProcess& program = *programs.back();
        silence(program);
        program.start("gm", {"batch", "-echo", "off", "-stop-on-error", "on", "-"});
        for (int i = job; i < names.size(); i += jobs)
            program.write(QString("convert -size 1024x768 \"%1/%3\" -resize 1024x768 -quality 80 \"%2/%3\"\n")
                              .arg(from, to, names[i])
                              .toUtf8());
        program.closeWriteChannel();
        program.waitForBytesWritten();
    }
    bool well = true;
    for (const auto& program : programs) well = program->waitForFinished() && program->exitCode() == 0 && well;
    return well;
}

QString largePicture()
{
    const QString path = folder() + "/photo.jpg";
    if (!QFile::exists(path)) bench::writeCloudsAsJPEG(path.toStdString(), 6000, 4000);
    return path;
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    for (const char* variable : {"HOME", "ZELPANE_TMP", "XDG_RUNTIME_DIR"}) qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("OMP_NUM_THREADS", "1");
    qputenv("DISPLAY", display().name());

    const std::pair<const char*, QStringList> editors[] = {
        {"Zelpane", {ZP_PROGRAM}}, {"mtPaint", {"mtpaint"}}, {"KolourPaint", {"kolourpaint"}}};
    for (const auto& [name, command] : editors) {
        const QStringList empty = command.first() == ZP_PROGRAM ? command + QStringList{"--new"} : command;
        for (const bool with : {false, true})
            benchmark::RegisterBenchmark(
                (std::string("window/") + name + (with ? "/picture" : "/empty")).c_str(),
                [=](benchmark::State& state) { window(state, with ? command + QStringList{largePicture()} : empty); })
                ->UseManualTime()
                ->Iterations(3)
                ->Unit(benchmark::kMillisecond);
    }
    for (const char* const kind : {"camera", "web"})
        for (const bool ours : {true, false})
            benchmark::RegisterBenchmark(
                (std::string("batch/") + (ours ? "Zelpane/" : "GraphicsMagick/") + kind).c_str(),
                [=](benchmark::State& state) { batch(state, kind, ours ? byZelpane : byGraphicsMagick); })
                ->UseManualTime()
                ->Iterations(5)
                ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
