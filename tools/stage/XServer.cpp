#include "stage/XServer.h"

#include "desktop/X11.h"

#include <QThread>

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <string_view>

namespace {
using X11::owned;

/// Time for a program to read a new keyboard map, in milliseconds.
constexpr unsigned long keyboardMapDelay = 150;

std::uint32_t keysym(char32_t character)
{
    return character < 0x100 ? character : 0x01000000 + character;
}

QString text(const xcb_get_property_reply_t *property)
{
    return QString::fromUtf8(
        static_cast<const char *>(xcb_get_property_value(property)), xcb_get_property_value_length(property));
}
} // namespace

XServer::XServer(const QString &display)
    : m_connection(xcb_connect(display.toLatin1().constData(), nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        qFatal("cannot reach the X server %s", qPrintable(display));
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_root = screen->root;
    m_size = {screen->width_in_pixels, screen->height_in_pixels};
    readKeyboardMap();
}

XServer::~XServer()
{
    xcb_disconnect(m_connection);
}

void XServer::readKeyboardMap()
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection);
    m_firstKeycode = setup->min_keycode;
    const auto reply = owned(xcb_get_keyboard_mapping_reply(m_connection,
        xcb_get_keyboard_mapping(
            m_connection, setup->min_keycode, std::uint8_t(setup->max_keycode - setup->min_keycode + 1)),
        nullptr));
    m_keysymsPerKeycode = reply->keysyms_per_keycode;
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(reply.get());
    m_keysyms = QList<std::uint32_t>(keysyms, keysyms + xcb_get_keyboard_mapping_keysyms_length(reply.get()));
}

std::uint8_t XServer::keycode(std::uint32_t wanted, bool &needsShift)
{
    for (int level = 0; level < 2; ++level) {
        for (qsizetype key = 0; key < m_keysyms.size() / m_keysymsPerKeycode; ++key) {
            if (m_keysyms[key * m_keysymsPerKeycode + level] == wanted) {
                needsShift = level == 1;
                return std::uint8_t(m_firstKeycode + key);
            }
        }
    }
    return 0;
}

void XServer::assignKeys(const QList<std::uint32_t> &wanted)
{
    bool hasAssigned = false;
    qsizetype key = 0;
    for (const std::uint32_t keysym : wanted) {
        bool needsShift = false;
        if (keycode(keysym, needsShift) != 0)
            continue;
        const auto isTaken = [this](qsizetype number) {
            for (int level = 0; level < m_keysymsPerKeycode; ++level) {
                const std::uint32_t taken = m_keysyms[number * m_keysymsPerKeycode + level];
                // Keys assigned for an earlier text may be reassigned.
                if (taken != 0 && taken < 0x01000000)
                    return true;
            }
            return false;
        };
        while (key < m_keysyms.size() / m_keysymsPerKeycode && isTaken(key))
            ++key;
        if (key == m_keysyms.size() / m_keysymsPerKeycode)
            qFatal("the text has more characters than the keyboard has keys");
        QList<std::uint32_t> row(m_keysymsPerKeycode, 0);
        row[0] = keysym;
        row[1] = keysym;
        xcb_change_keyboard_mapping(m_connection, 1, std::uint8_t(m_firstKeycode + key),
            std::uint8_t(m_keysymsPerKeycode), row.constData());
        std::copy(row.cbegin(), row.cend(), m_keysyms.begin() + key * m_keysymsPerKeycode);
        ++key;
        hasAssigned = true;
    }
    if (hasAssigned) {
        xcb_flush(m_connection);
        QThread::msleep(keyboardMapDelay);
        readKeyboardMap();
    }
}

void XServer::moveToAnotherKey(std::uint32_t keysym)
{
    bool needsShift = false;
    const std::uint8_t old = keycode(keysym, needsShift);
    const QList<std::uint32_t> nothing(m_keysymsPerKeycode, 0);
    xcb_change_keyboard_mapping(m_connection, 1, old, std::uint8_t(m_keysymsPerKeycode), nothing.constData());
    std::fill_n(m_keysyms.begin() + (old - m_firstKeycode) * m_keysymsPerKeycode, m_keysymsPerKeycode,
        1); // so that this key is not chosen again
    assignKeys({keysym});
}

void XServer::fakeKey(std::uint8_t keycode, bool isPress)
{
    xcb_test_fake_input(m_connection, isPress ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode, XCB_CURRENT_TIME,
        XCB_NONE, 0, 0, 0);
    xcb_flush(m_connection);
}

void XServer::hold(const QList<std::uint32_t> &keysyms, std::chrono::milliseconds time)
{
    QList<std::uint8_t> keys;
    for (const std::uint32_t wanted : keysyms) {
        bool needsShift = false;
        keys.append(keycode(wanted, needsShift));
    }
    for (const std::uint8_t key : std::as_const(keys))
        fakeKey(key, true);
    QThread::msleep(static_cast<unsigned long>(time.count()));
    for (auto key = keys.crbegin(); key != keys.crend(); ++key)
        fakeKey(*key, false);
}

void XServer::type(const QString &text)
{
    QList<std::uint32_t> keysyms;
    const QList<uint> characters = text.toUcs4();
    for (const char32_t character : characters)
        keysyms.append(keysym(character));
    assignKeys(keysyms);
    constexpr unsigned long keyInterval = 10;
    for (const std::uint32_t wanted : std::as_const(keysyms)) {
        bool needsShift = false;
        const std::uint8_t key = keycode(wanted, needsShift);
        bool unused = false;
        const std::uint8_t shift = needsShift ? keycode(Keysym::shift, unused) : std::uint8_t(0);
        if (shift != 0)
            fakeKey(shift, true);
        fakeKey(key, true);
        fakeKey(key, false);
        if (shift != 0)
            fakeKey(shift, false);
        QThread::msleep(keyInterval);
    }
}

void XServer::point(QPoint position)
{
    xcb_test_fake_input(m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_root,
        std::int16_t(position.x()), std::int16_t(position.y()), 0);
    xcb_flush(m_connection);
    QThread::msleep(50);
}

void XServer::click(QPoint position, int button)
{
    point(position);
    for (const int event : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        xcb_test_fake_input(
            m_connection, std::uint8_t(event), std::uint8_t(button), XCB_CURRENT_TIME, m_root, 0, 0, 0);
    xcb_flush(m_connection);
}

std::uint32_t XServer::atom(std::string_view name) const
{
    return owned(xcb_intern_atom_reply(m_connection,
                     xcb_intern_atom(m_connection, false, std::uint16_t(name.size()), name.data()), nullptr))
        ->atom;
}

void XServer::sendToWindowManager(std::uint32_t window, std::string_view message, std::uint32_t value)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    event.data.data32[0] = value;
    xcb_send_event(m_connection, false, m_root,
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection);
}

void XServer::openFullScreenWindow()
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_fullScreenWindow = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, screen->root_depth, m_fullScreenWindow, m_root, 0, 0,
        std::uint16_t(m_size.width()), std::uint16_t(m_size.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        screen->root_visual, XCB_CW_BACK_PIXEL, &screen->black_pixel);
    const std::uint32_t fullScreen = atom("_NET_WM_STATE_FULLSCREEN");
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_fullScreenWindow, atom("_NET_WM_STATE"),
        XCB_ATOM_ATOM, 32, 1, &fullScreen);
    xcb_map_window(m_connection, m_fullScreenWindow);
    focusFullScreenWindow();
}

void XServer::focusFullScreenWindow()
{
    constexpr std::uint32_t fromPager = 2;
    sendToWindowManager(m_fullScreenWindow, "_NET_ACTIVE_WINDOW", fromPager);
}

bool XServer::isFullScreenWindowFocused() const
{
    const auto reply =
        owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply && reply->focus == m_fullScreenWindow;
}

void XServer::iconify(std::uint32_t window)
{
    constexpr std::uint32_t iconic = 3;
    sendToWindowManager(window, "WM_CHANGE_STATE", iconic);
}

void XServer::goToDesktop(std::uint32_t number)
{
    sendToWindowManager(m_root, "_NET_CURRENT_DESKTOP", number);
}

void XServer::setWallpaper(const QImage &image)
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const xcb_pixmap_t pixmap = xcb_generate_id(m_connection);
    const xcb_gcontext_t context = xcb_generate_id(m_connection);
    xcb_create_pixmap(m_connection, screen->root_depth, pixmap, m_root, std::uint16_t(image.width()),
        std::uint16_t(image.height()));
    xcb_create_gc(m_connection, context, pixmap, 0, nullptr);
    constexpr int rows = 64; // the size of a request is limited
    for (int y = 0; y < image.height(); y += rows) {
        const int height = std::min(rows, image.height() - y);
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, std::uint16_t(image.width()),
            std::uint16_t(height), 0, std::int16_t(y), 0, screen->root_depth,
            std::uint32_t(image.bytesPerLine() * height), image.constScanLine(y));
    }
    xcb_free_gc(m_connection, context);
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(m_connection, false, m_root, 0, 0, 0, 0);
    // Compositors look for it here.
    xcb_change_property(
        m_connection, XCB_PROP_MODE_REPLACE, m_root, atom("_XROOTPMAP_ID"), XCB_ATOM_PIXMAP, 32, 1, &pixmap);
    xcb_flush(m_connection);
}

QImage XServer::screenshot() const
{
    return screenshot(QRect({0, 0}, m_size));
}

QImage XServer::screenshot(QRect wanted) const
{
    const QRect part = wanted.intersected(QRect({0, 0}, m_size));
    const auto reply = owned(xcb_get_image_reply(m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, std::int16_t(part.x()),
            std::int16_t(part.y()), std::uint16_t(part.width()), std::uint16_t(part.height()), ~0U),
        nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), part.width(), part.height(), QImage::Format_RGB32).copy();
}

void XServer::find(std::uint32_t parent, std::uint32_t property, const QString &value, bool isInner,
    QList<Window> &out) const
{
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, parent), nullptr));
    if (!tree)
        return;
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t child = children[i];
        const auto named = owned(xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, false, child, property, XCB_ATOM_ANY, 0, 256), nullptr));
        const auto attributes = owned(xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, child), nullptr));
        const auto geometry =
            owned(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, child), nullptr));
        const auto position = owned(xcb_translate_coordinates_reply(
            m_connection, xcb_translate_coordinates(m_connection, child, m_root, 0, 0), nullptr));
        if (!named || !attributes || !geometry || !position)
            continue; // destroyed meanwhile
        // A class consists of two strings, each terminated by a zero.
        if (attributes->map_state == XCB_MAP_STATE_VIEWABLE
            && text(named.get()).split(QChar(u'\0')).contains(value))
            out.append(
                {child, {position->dst_x, position->dst_y, geometry->width, geometry->height}, isInner});
        find(child, property, value, true, out);
    }
}

int XServer::childCount(std::uint32_t window) const
{
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    return tree ? xcb_query_tree_children_length(tree.get()) : 0;
}

QList<XServer::Window> XServer::windowsTitled(const QString &title) const
{
    QList<Window> found;
    find(m_root, XCB_ATOM_WM_NAME, title, false, found);
    return found;
}

QList<XServer::Window> XServer::windowsOfClass(const QString &name) const
{
    QList<Window> found;
    find(m_root, XCB_ATOM_WM_CLASS, name, false, found);
    return found;
}

void XServer::grabHotKey()
{
    bool needsShift = false;
    xcb_grab_key(m_connection, true, m_root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1,
        keycode(Keysym::space, needsShift), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    // A round trip, so that the grab is active when this returns.
    (void)owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}
