// SPDX-License-Identifier: GPL-3.0-or-later
/// The selection protocol: a property of a window that lives for one question, whole or piece by piece.
#include "desktop/X11Clipboard.h"
#include <QList>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <string_view>
#include <xcb/xcb.h>

namespace zp
{

namespace
{

using Clock = std::chrono::steady_clock;
using End = ClipboardAnswer::End;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Free>;

constexpr int kSliceMilliseconds = 50;
/// What is taken from the server at a time, in its words of four bytes.
constexpr std::uint32_t kPieceWords = 256u << 10;
/// More kinds than this nobody offers.
constexpr std::size_t kMostKinds = 500;

class Conversation
{
public:
    explicit Conversation(const ClipboardQuestion& question)
        : mQuestion(question), mServer(xcb_connect(question.display, nullptr)), mLastSign(Clock::now())
    {
        if (xcb_connection_has_error(mServer)) return;
        mWindow = xcb_generate_id(mServer);
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(mServer)).data;
        xcb_create_window(mServer, XCB_COPY_FROM_PARENT, mWindow, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, screen->root_visual, XCB_CW_EVENT_MASK, &events);
        mSelection = atom("CLIPBOARD");
        mProperty = atom("ZELPANE_CLIPBOARD");
        mInPieces = atom("INCR");
    }
    /// The window goes with the connection, and whoever still sends to it hears so.
    ~Conversation() { xcb_disconnect(mServer); }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    ClipboardAnswer ask()
    {
        if (xcb_connection_has_error(mServer)) return {};
        xcb_convert_selection(mServer, mWindow, mSelection,
                              atom({mQuestion.kind.constData(), std::size_t(mQuestion.kind.size())}), mProperty,
                              XCB_CURRENT_TIME);
        const auto notice = await<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY, [this](const auto& event) {
            return event.requestor == mWindow && event.selection == mSelection;
        });
        if (!notice) return {mEnd};
        if (notice->property != mProperty) return {End::Refused};
        const auto head = property(0, 1, false);
        if (!head) return {End::Refused};
        const bool inPieces = head->type == mInPieces;
        if (inPieces && xcb_get_property_value_length(head.get()) >= 4) {
            std::uint32_t atLeast = 0; // as the owner says
            std::memcpy(&atLeast, xcb_get_property_value(head.get()), sizeof atLeast);
            if (atLeast > mQuestion.most) return {End::TooLarge};
        }
        return {inPieces ? takePieces() : takeProperty(), std::move(mBytes)};
    }

    QByteArray nameOf(xcb_atom_t atom)
    {
        const Answer<xcb_get_atom_name_reply_t> name(
            xcb_get_atom_name_reply(mServer, xcb_get_atom_name(mServer, atom), nullptr));
        return name ? QByteArray(xcb_get_atom_name_name(name.get()), xcb_get_atom_name_name_length(name.get()))
                    : QByteArray();
    }

private:
    xcb_atom_t atom(std::string_view name)
    {
        const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
            mServer, xcb_intern_atom(mServer, 0, std::uint16_t(name.size()), name.data()), nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    Answer<xcb_get_property_reply_t> property(std::uint32_t fromWord, std::uint32_t words, bool remove)
    {
        return Answer<xcb_get_property_reply_t>(xcb_get_property_reply(
            mServer, xcb_get_property(mServer, remove, mWindow, mProperty, XCB_GET_PROPERTY_TYPE_ANY, fromWord, words),
            nullptr));
    }

    /// The next event of that kind that is @p wanted; null when none comes, mEnd says why.
    template <class Event, class Wanted>
    Answer<Event> await(std::uint8_t kind, const Wanted& wanted)
    {
        for (;;) {
            xcb_flush(mServer);
            while (Answer<xcb_generic_event_t> event{xcb_poll_for_event(mServer)}) {
                if ((event->response_type & 0x7F) != kind) continue;
                if (!wanted(*reinterpret_cast<const Event*>(event.get()))) continue;
                mLastSign = Clock::now();
                return Answer<Event>(reinterpret_cast<Event*>(event.release()));
            }
            if (xcb_connection_has_error(mServer)) return stop<Event>(End::Refused);
            pollfd there{xcb_get_file_descriptor(mServer), POLLIN, 0};
            if (::poll(&there, 1, kSliceMilliseconds) > 0) continue;
            if (mQuestion.goOn && !mQuestion.goOn()) return stop<Event>(End::GivenUp);
            if (Clock::now() - mLastSign > mQuestion.patience) return stop<Event>(End::Silent);
        }
    }
    template <class Event>
    Answer<Event> stop(End end)
    {
        mEnd = end;
        return nullptr;
    }

    /// All of the property as it is now, which goes then: the sign for the next piece.
    End takeProperty()
    {
        for (std::uint32_t at = 0;;) {
            const auto piece = property(at, kPieceWords, true);
            if (!piece) return End::Refused;
            const auto count = std::size_t(xcb_get_property_value_length(piece.get()));
            if (std::size_t(mBytes.size()) + count + piece->bytes_after > mQuestion.most) {
                mBytes = {};
                return End::TooLarge;
            }
            mBytes.append(static_cast<const char*>(xcb_get_property_value(piece.get())), qsizetype(count));
            if (piece->bytes_after == 0 || count == 0) return End::Whole;
            at += std::uint32_t(count / 4);
        }
    }

    End takePieces()
    {
        xcb_delete_property(mServer, mWindow, mProperty); // the sign to begin
        for (;;) {
            const auto notice = await<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
                return event.window == mWindow && event.atom == mProperty && event.state == XCB_PROPERTY_NEW_VALUE;
            });
            if (!notice) {
                mBytes = {};
                return mEnd;
            }
            const qsizetype before = mBytes.size();
            if (const End end = takeProperty(); end != End::Whole) return end;
            if (mBytes.size() == before) return End::Whole; // a piece of nothing is the last
        }
    }

    const ClipboardQuestion& mQuestion;
    xcb_connection_t* const mServer;
    xcb_window_t mWindow = 0;
    xcb_atom_t mSelection = 0, mProperty = 0, mInPieces = 0;
    Clock::time_point mLastSign;
    End mEnd = End::Refused;
    QByteArray mBytes;
};

} // namespace

ClipboardAnswer askX11Clipboard(const ClipboardQuestion& question) { return Conversation(question).ask(); }

QList<QByteArray> kindsOnX11Clipboard(std::chrono::milliseconds patience, const char* display)
{
    const ClipboardQuestion question{
        .kind = "TARGETS", .most = kMostKinds * sizeof(xcb_atom_t), .patience = patience, .display = display};
    Conversation conversation(question);
    const ClipboardAnswer answer = conversation.ask();
    QList<QByteArray> kinds;
    for (qsizetype at = 0; at + qsizetype(sizeof(xcb_atom_t)) <= answer.bytes.size(); at += sizeof(xcb_atom_t)) {
        xcb_atom_t atom = 0;
        std::memcpy(&atom, answer.bytes.constData() + at, sizeof atom);
        kinds << conversation.nameOf(atom);
    }
    return kinds;
}

} // namespace zp
