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

XServer::Key XServer::key(std::uint32_t keysym) const
{
    for (int level = 0; level < 2; ++level) {
        for (qsizetype number = 0; number < m_keysyms.size() / m_keysymsPerKeycode; ++number) {
            if (m_keysyms[number * m_keysymsPerKeycode + level] == keysym)
                return {std::uint8_t(m_firstKeycode + number), level == 1};
        }
    }
    return {};
}

bool XServer::isFree(qsizetype number) const
{
    const auto keysyms = m_keysyms.cbegin() + number * m_keysymsPerKeycode;
    // Keys assigned for an earlier text may be reassigned.
    return std::none_of(keysyms, keysyms + m_keysymsPerKeycode,
        [](std::uint32_t keysym) { return keysym != 0 && keysym < 0x01000000; });
}

void XServer::assign(qsizetype number, std::uint32_t keysym)
{
    QList<std::uint32_t> keysyms(m_keysymsPerKeycode, 0);
    keysyms[0] = keysym;
    keysyms[1] = keysym;
    xcb_change_keyboard_mapping(m_connection, 1, std::uint8_t(m_firstKeycode + number),
        std::uint8_t(m_keysymsPerKeycode), keysyms.constData());
    std::copy(keysyms.cbegin(), keysyms.cend(), m_keysyms.begin() + number * m_keysymsPerKeycode);
}

void XServer::assignKeys(const QList<std::uint32_t> &keysyms)
{
    qsizetype number = 0;
    for (const std::uint32_t keysym : keysyms) {
        if (key(keysym).code != 0)
            continue;
        while (number < m_keysyms.size() / m_keysymsPerKeycode && !isFree(number))
            ++number;
        if (number == m_keysyms.size() / m_keysymsPerKeycode)
            qFatal("the text has more characters than the keyboard has keys");
        assign(number++, keysym);
    }
    if (number > 0) {
        xcb_flush(m_connection);
        QThread::msleep(keyboardMapDelay);
        readKeyboardMap();
    }
}

void XServer::moveToAnotherKey(std::uint32_t keysym)
{
    constexpr std::uint32_t otherSymbol = 1; // so that the key is not free
    assign(key(keysym).code - m_firstKeycode, otherSymbol);
    assignKeys({keysym});
}

void XServer::fakeInput(std::uint8_t type, int detail, QPoint position)
{
    xcb_test_fake_input(m_connection, type, std::uint8_t(detail), XCB_CURRENT_TIME, m_root,
        std::int16_t(position.x()), std::int16_t(position.y()), 0);
    xcb_flush(m_connection);
}

void XServer::hold(const QList<std::uint32_t> &keysyms, std::chrono::milliseconds time)
{
    for (const std::uint32_t keysym : keysyms)
        fakeInput(XCB_KEY_PRESS, key(keysym).code);
    QThread::msleep(static_cast<unsigned long>(time.count()));
    for (auto keysym = keysyms.crbegin(); keysym != keysyms.crend(); ++keysym)
        fakeInput(XCB_KEY_RELEASE, key(*keysym).code);
}

void XServer::type(const QString &text)
{
    QList<std::uint32_t> keysyms;
    const QList<uint> characters = text.toUcs4();
    for (const char32_t character : characters)
        keysyms.append(character < 0x100 ? character : 0x01000000 + character);
    assignKeys(keysyms);
    constexpr unsigned long keyInterval = 10;
    for (const std::uint32_t keysym : std::as_const(keysyms)) {
        if (key(keysym).needsShift)
            press({Keysym::shift, keysym});
        else
            press({keysym});
        QThread::msleep(keyInterval);
    }
}

void XServer::point(QPoint position)
{
    fakeInput(XCB_MOTION_NOTIFY, 0, position);
    QThread::msleep(50);
}

void XServer::click(QPoint position, int button)
{
    point(position);
    fakeInput(XCB_BUTTON_PRESS, button);
    fakeInput(XCB_BUTTON_RELEASE, button);
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

QImage XServer::screenshot(std::optional<QRect> rect) const
{
    const QRect screen({0, 0}, m_size);
    const QRect part = screen.intersected(rect.value_or(screen));
    const auto reply = owned(xcb_get_image_reply(m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, std::int16_t(part.x()),
            std::int16_t(part.y()), std::uint16_t(part.width()), std::uint16_t(part.height()), ~0U),
        nullptr));
    if (!reply)
        return {};
    return QImage(xcb_get_image_data(reply.get()), part.width(), part.height(), QImage::Format_RGB32).copy();
}

QList<XServer::Window> XServer::find(std::uint32_t parent, std::uint32_t property, const QString &value) const
{
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, parent), nullptr));
    if (!tree)
        return {};
    QList<Window> found;
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
            found.append({child, {position->dst_x, position->dst_y, geometry->width, geometry->height},
                parent != m_root});
        found += find(child, property, value);
    }
    return found;
}

int XServer::childCount(std::uint32_t window) const
{
    const auto tree =
        owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    return tree ? xcb_query_tree_children_length(tree.get()) : 0;
}

QList<XServer::Window> XServer::windowsTitled(const QString &title) const
{
    return find(m_root, XCB_ATOM_WM_NAME, title);
}

QList<XServer::Window> XServer::windowsOfClass(const QString &name) const
{
    return find(m_root, XCB_ATOM_WM_CLASS, name);
}

void XServer::grabHotKey()
{
    xcb_grab_key(m_connection, true, m_root, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1, key(Keysym::space).code,
        XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    // A round trip, so that the grab is active when this returns.
    (void)owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}
