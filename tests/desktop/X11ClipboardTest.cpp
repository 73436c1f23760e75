// SPDX-License-Identifier: GPL-3.0-or-later
/// Owners of an X server's clipboard, honest and other, on a server of the test's own.
#include "desktop/X11Clipboard.h"
#include <QList>
#include <QProcess>
#include <QStandardPaths>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <thread>
#include <xcb/xcb.h>

namespace zp
{
namespace
{

using End = ClipboardAnswer::End;

constexpr std::size_t kMost = 4u << 20;
constexpr std::chrono::milliseconds kPatience{400};

/// A server without a screen.
class Server
{
public:
    Server()
    {
        mProcess.setProgram(QStandardPaths::findExecutable("Xvfb"));
        mProcess.setArguments({"-displayfd", "1", "-screen", "0", "64x64x24", "-nolisten", "tcp", "-noreset"});
        mProcess.start(QProcess::ReadOnly);
        while (!mName.endsWith('\n') && mProcess.waitForReadyRead(30'000)) mName += mProcess.readAllStandardOutput();
        mName = ":" + mName.trimmed();
    }
    ~Server()
    {
        mProcess.terminate();
        if (!mProcess.waitForFinished(5'000)) mProcess.kill();
        mProcess.waitForFinished();
    }
    static bool isInstalled() { return !QStandardPaths::findExecutable("Xvfb").isEmpty(); }
    const char* name() const { return mName.constData(); }

private:
    QProcess mProcess;
    QByteArray mName;
};

/// Owns the clipboard as long as it lives, and answers as it likes.
class Owner
{
public:
    using Reply = std::function<void(Owner&, const xcb_selection_request_event_t&)>;

    Owner(const char* display, Reply reply) : mServer(xcb_connect(display, nullptr)), mReply(std::move(reply))
    {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(mServer)).data;
        mWindow = xcb_generate_id(mServer);
        xcb_create_window(mServer, XCB_COPY_FROM_PARENT, mWindow, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, screen->root_visual, 0, nullptr);
        xcb_set_selection_owner(mServer, mWindow, atom("CLIPBOARD"), XCB_CURRENT_TIME);
        std::free(xcb_get_input_focus_reply(mServer, xcb_get_input_focus(mServer), nullptr)); // it has arrived
        mThread = std::thread([this] { serve(); });
    }
    ~Owner()
    {
        mEnds = true;
        mThread.join();
        xcb_disconnect(mServer);
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    xcb_atom_t atom(const std::string& name)
    {
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(
            mServer, xcb_intern_atom(mServer, 0, std::uint16_t(name.size()), name.data()), nullptr);
        const xcb_atom_t number = reply->atom;
        std::free(reply);
        return number;
    }
    void put(const xcb_selection_request_event_t& to, xcb_atom_t type, const void* bytes, std::size_t count,
             std::uint8_t format = 8, bool append = false)
    {
        xcb_change_property(mServer, append ? XCB_PROP_MODE_APPEND : XCB_PROP_MODE_REPLACE, to.requestor, to.property,
                            type, format, std::uint32_t(count / (format / 8)), bytes);
    }
    void tell(const xcb_selection_request_event_t& to, xcb_atom_t property)
    {
        xcb_selection_notify_event_t answer{};
        answer.response_type = XCB_SELECTION_NOTIFY;
        answer.requestor = to.requestor;
        answer.selection = to.selection;
        answer.target = to.target;
        answer.property = property;
        xcb_send_event(mServer, 0, to.requestor, 0, reinterpret_cast<const char*>(&answer));
        xcb_flush(mServer);
    }
    void give(const xcb_selection_request_event_t& to, const QByteArray& bytes)
    {
        put(to, to.target, bytes.constData(), std::size_t(bytes.size()));
        tell(to, to.property);
    }
    /// In pieces, of which @p next makes the one of that number; one of nothing is the last.
    void giveInPieces(const xcb_selection_request_event_t& to, std::uint32_t claimed,
                      const std::function<QByteArray(int)>& next)
    {
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(mServer, to.requestor, XCB_CW_EVENT_MASK, &events);
        put(to, atom("INCR"), &claimed, sizeof claimed, 32);
        tell(to, to.property);
        for (int number = 0;; ++number) {
            if (!awaitTaken(to)) return;
            const QByteArray piece = next(number);
            put(to, to.target, piece.constData(), std::size_t(piece.size()));
            xcb_flush(mServer);
            sent += std::size_t(piece.size());
            if (piece.isEmpty()) return;
        }
    }
    std::atomic<std::size_t> sent = 0;

private:
    using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;

    Event next()
    {
        while (!mEnds && !xcb_connection_has_error(mServer)) {
            if (Event event{xcb_poll_for_event(mServer), &std::free}) return event;
            pollfd there{xcb_get_file_descriptor(mServer), POLLIN, 0};
            ::poll(&there, 1, 10);
        }
        return {nullptr, &std::free};
    }
    /// @return false when nobody takes it any more
    bool awaitTaken(const xcb_selection_request_event_t& to)
    {
        while (const Event event = next()) {
            const std::uint8_t kind = event->response_type & 0x7F;
            if (kind == XCB_DESTROY_NOTIFY || kind == 0) return false;
            const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            if (kind == XCB_PROPERTY_NOTIFY && change.atom == to.property && change.state == XCB_PROPERTY_DELETE)
                return true;
        }
        return false;
    }
    void serve()
    {
        while (const Event event = next())
            if ((event->response_type & 0x7F) == XCB_SELECTION_REQUEST)
                mReply(*this, *reinterpret_cast<const xcb_selection_request_event_t*>(event.get()));
    }

    xcb_connection_t* const mServer;
    xcb_window_t mWindow = 0;
    Reply mReply;
    std::atomic<bool> mEnds = false;
    std::thread mThread;
};

struct Case {
    const char* name;
    Owner::Reply reply;
    End end;
    qsizetype bytes = 0;
};

QByteArray piece(int number) { return QByteArray(100'001 + number, char('a' + number % 26)); }

const std::vector<Case>& cases()
{
    using Request = xcb_selection_request_event_t;
    static const std::vector<Case> all = {
        {"gives a little", [](Owner& o, const Request& r) { o.give(r, "picture"); }, End::Whole, 7},
        {"gives nothing", [](Owner& o, const Request& r) { o.give(r, {}); }, End::Whole, 0},
        {"gives pieces",
         [](Owner& o, const Request& r) {
             o.giveInPieces(r, 0, [](int number) { return number < 12 ? piece(number) : QByteArray(); });
         },
         End::Whole, 12 * 100'001 + 66},
        {"refuses", [](Owner& o, const Request& r) { o.tell(r, XCB_ATOM_NONE); }, End::Refused},
        {"says another place", [](Owner& o, const Request& r) { o.tell(r, o.atom("ELSEWHERE")); }, End::Refused},
        {"says it is there where nothing is", [](Owner& o, const Request& r) { o.tell(r, r.property); }, End::Whole, 0},
        {"is silent", [](Owner&, const Request&) {}, End::Silent},
        {"stops in the midst",
         [](Owner& o, const Request& r) {
             const std::uint32_t claimed = 0;
             o.put(r, o.atom("INCR"), &claimed, sizeof claimed, 32);
             o.tell(r, r.property);
         },
         End::Silent},
        {"claims two gigabytes", [](Owner& o, const Request& r) { o.giveInPieces(r, 1u << 31, piece); }, End::TooLarge},
        {"claims little and sends without end",
         [](Owner& o, const Request& r) { o.giveInPieces(r, 1, [](int) { return QByteArray(1 << 20, 'x'); }); },
         End::TooLarge},
        {"puts down too much at once",
         [](Owner& o, const Request& r) {
             const QByteArray part(1 << 20, 'x');
             for (int i = 0; i < 5; ++i) o.put(r, r.target, part.constData(), std::size_t(part.size()), 8, i > 0);
             o.tell(r, r.property);
         },
         End::TooLarge},
    };
    return all;
}

TEST(X11Clipboard, IsTakenWholeOrNotAtAllWhateverItsOwnerDoes)
{
    if (!Server::isInstalled()) GTEST_SKIP() << "no Xvfb";
    const Server server;
    for (const Case& one : cases()) {
        SCOPED_TRACE(one.name);
        Owner owner(server.name(), one.reply);
        const ClipboardAnswer answer =
            askX11Clipboard({.kind = "image/tiff", .most = kMost, .patience = kPatience, .display = server.name()});
        EXPECT_EQ(int(answer.end), int(one.end));
        EXPECT_EQ(answer.bytes.size(), one.bytes);
        EXPECT_EQ(answer.bytes.capacity() > qsizetype(kMost), false);
        EXPECT_LE(owner.sent.load(), kMost + (2u << 20)) << "it was let go on";
    }
    Owner owner(server.name(), cases()[2].reply);
    const ClipboardAnswer answer =
        askX11Clipboard({.kind = "image/png", .most = kMost, .patience = kPatience, .display = server.name()});
    qsizetype at = 0;
    for (int number = 0; number < 12; at += piece(number++).size())
        EXPECT_TRUE(QByteArrayView(answer.bytes).sliced(at).startsWith(piece(number))) << number;
}

TEST(X11Clipboard, IsNotWaitedForByWhoeverWantsItNoMore)
{
    if (!Server::isInstalled()) GTEST_SKIP() << "no Xvfb";
    const Server server;
    Owner owner(server.name(), [](Owner&, const auto&) {});
    int asked = 0;
    const ClipboardAnswer answer = askX11Clipboard({.kind = "image/tiff",
                                                    .most = kMost,
                                                    .patience = std::chrono::hours(1),
                                                    .goOn = [&asked] { return ++asked < 3; },
                                                    .display = server.name()});
    EXPECT_EQ(int(answer.end), int(End::GivenUp));
    EXPECT_EQ(asked, 3);
}

TEST(X11Clipboard, NamesTheKindsThatAreOffered)
{
    if (!Server::isInstalled()) GTEST_SKIP() << "no Xvfb";
    const Server server;
    EXPECT_EQ(kindsOnX11Clipboard(kPatience, server.name()), QList<QByteArray>()) << "nobody owns it";
    const auto offering = [&server](int times) {
        Owner owner(server.name(), [times](Owner& o, const auto& r) {
            const xcb_atom_t both[] = {o.atom("image/tiff"), o.atom("text/plain")};
            for (int i = 0; i < times; ++i) o.put(r, XCB_ATOM_ATOM, both, sizeof both, 32, i > 0);
            o.tell(r, r.property);
        });
        return kindsOnX11Clipboard(kPatience, server.name());
    };
    EXPECT_EQ(offering(1), (QList<QByteArray>{"image/tiff", "text/plain"}));
    EXPECT_EQ(offering(300), QList<QByteArray>()) << "nobody offers so many";
    EXPECT_EQ(kindsOnX11Clipboard(kPatience, ":65000"), QList<QByteArray>()) << "there is no such server";
}

} // namespace
} // namespace zp
