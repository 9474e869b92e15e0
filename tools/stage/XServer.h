#pragma once

#include <QImage>
#include <QRect>
#include <QString>

#include <chrono>
#include <cstdint>
#include <string_view>

struct xcb_connection_t;

/// A client of an X server that looks at its windows and pixels and presses its keys and buttons.
class XServer final
{
public:
    explicit XServer(const QString &display);
    ~XServer();
    Q_DISABLE_COPY_MOVE(XServer)

    /// Types the text on a keyboard that has every character on a key of its own; real presses and releases.
    void type(const QString &text);
    /// Presses the keys, in this order, and releases them in reverse: "Control_L", "Alt_L", "space".
    void press(const QList<std::uint32_t> &keysyms) { hold(keysyms, {}); }
    void hold(const QList<std::uint32_t> &keysyms, std::chrono::milliseconds time);
    /// From now on another key of the keyboard has this symbol, as when another keyboard is plugged in.
    void moveToAnotherKey(std::uint32_t keysym);
    void click(QPoint where, int button = 1);
    void point(QPoint where); ///< moves the pointer there
    /// What is seen where no window is; of the screen's size.
    void setWallpaper(const QImage &picture);

    [[nodiscard]] QImage screenshot() const;
    [[nodiscard]] QImage screenshot(QRect part) const;

    struct Window {
        std::uint32_t id = 0;
        QRect frame;          ///< on the screen
        bool isInner = false; ///< within another window: a tray's, or the frame of the window manager
    };
    /// The windows that can be seen and have this title, or this class.
    [[nodiscard]] QList<Window> windowsTitled(const QString &title) const;
    [[nodiscard]] QList<Window> windowsOfClass(const QString &name) const;
    /// How many windows are right within this one: to be asked often, unlike the others, which look at all
    /// there are.
    [[nodiscard]] int childCount(std::uint32_t window) const;

    /// Opens a window of another program that fills the screen and takes the focus; it stays as long as the
    /// object.
    void openFullScreenWindow();
    void goToDesktop(std::uint32_t number);
    /// Another client takes the focus, as by a click on its window.
    void focusFullScreenWindow();
    [[nodiscard]] bool isFullScreenWindowFocused() const;
    void iconify(std::uint32_t window);

    /// Takes the key combination for itself, so that nobody else can have it.
    void grabHotKey();

private:
    void fakeKey(std::uint8_t keycode, bool isPress);
    [[nodiscard]] std::uint32_t atom(std::string_view name) const;
    void tellWindowManager(std::uint32_t window, std::string_view message, std::uint32_t value);
    [[nodiscard]] std::uint8_t keycode(std::uint32_t keysym, bool &needsShift);
    void learnKeyboard();
    void assignKeys(const QList<std::uint32_t> &keysyms);
    void find(std::uint32_t parent, std::uint32_t property, const QString &value, bool isInner,
        QList<Window> &found) const;

    xcb_connection_t *m_connection = nullptr;
    std::uint32_t m_root = 0;
    std::uint32_t m_fullScreenWindow = 0;
    QSize m_size;
    std::uint8_t m_firstKeycode = 0;
    int m_keysymsPerKeycode = 0;
    QList<std::uint32_t> m_keysyms; ///< the keyboard map, m_keysymsPerKeycode for each key
};

namespace Keysym {
constexpr std::uint32_t space = 0x20;
constexpr std::uint32_t escape = 0xff1b;
constexpr std::uint32_t enter = 0xff0d;
constexpr std::uint32_t tab = 0xff09;
constexpr std::uint32_t up = 0xff52;
constexpr std::uint32_t down = 0xff54;
constexpr std::uint32_t menu = 0xff67;
constexpr std::uint32_t remove = 0xffff;
constexpr std::uint32_t pageDown = 0xff56;
constexpr std::uint32_t home = 0xff50;
constexpr std::uint32_t digit1 = 0x31;
constexpr std::uint32_t digit2 = 0x32;
constexpr std::uint32_t digit3 = 0x33;
constexpr std::uint32_t digit4 = 0x34;
constexpr std::uint32_t numLock = 0xff7f;
constexpr std::uint32_t shift = 0xffe1;
constexpr std::uint32_t control = 0xffe3;
constexpr std::uint32_t alt = 0xffe9;
} // namespace Keysym
