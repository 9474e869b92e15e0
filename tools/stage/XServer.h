#pragma once

#include <QImage>
#include <QRect>
#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

struct xcb_connection_t;

/// A client of an X server that finds windows, takes screenshots, and presses keys and buttons.
class XServer final
{
public:
    explicit XServer(const QString &display);
    ~XServer();
    Q_DISABLE_COPY_MOVE(XServer)

    /// Types the text by key presses and releases, after assigning each missing character to a key of its
    /// own.
    void type(const QString &text);
    /// Presses the keys, in this order, and releases them in reverse: "Control_L", "Alt_L", "space".
    void press(const QList<std::uint32_t> &keysyms) { hold(keysyms, {}); }
    void hold(const QList<std::uint32_t> &keysyms, std::chrono::milliseconds time);
    /// Moves the symbol to another key, as when another keyboard is plugged in.
    void moveToAnotherKey(std::uint32_t keysym);
    void click(QPoint position, int button = 1);
    void point(QPoint position); ///< moves the pointer there
    /// Sets the background of the root window; @p image has the size of the screen.
    void setWallpaper(const QImage &image);

    /// Of the whole screen unless a part is given.
    [[nodiscard]] QImage screenshot(std::optional<QRect> rect = {}) const;

    struct Window {
        std::uint32_t id = 0;
        QRect frame;          ///< on the screen
        bool isInner = false; ///< within another window: a tray's, or the frame of the window manager
    };
    /// The visible windows with this title, or this class.
    [[nodiscard]] QList<Window> windowsTitled(const QString &title) const;
    [[nodiscard]] QList<Window> windowsOfClass(const QString &name) const;
    /// The number of direct children; cheap, while the functions above visit every window.
    [[nodiscard]] int childCount(std::uint32_t window) const;

    /// Opens a full-screen window with the focus, as of another program, until this object is destroyed.
    void openFullScreenWindow();
    void goToDesktop(std::uint32_t number);
    /// Gives it the focus again, as by a click on it.
    void focusFullScreenWindow();
    [[nodiscard]] bool isFullScreenWindowFocused() const;
    void iconify(std::uint32_t window);

    /// Grabs Control+Alt+Space, so that other clients cannot.
    void grabHotKey();

private:
    struct Key {
        std::uint8_t code = 0; ///< 0: no key has the symbol
        bool needsShift = false;
    };

    void fakeInput(std::uint8_t type, int detail, QPoint position = {});
    [[nodiscard]] std::uint32_t atom(std::string_view name) const;
    void sendToWindowManager(std::uint32_t window, std::string_view message, std::uint32_t value);
    [[nodiscard]] Key key(std::uint32_t keysym) const;
    [[nodiscard]] bool isFree(qsizetype number) const; ///< whether the key may get another symbol
    void readKeyboardMap();
    void assign(qsizetype number, std::uint32_t keysym);
    void assignKeys(const QList<std::uint32_t> &keysyms); ///< to free keys where no key has them
    [[nodiscard]] QList<Window> find(
        std::uint32_t parent, std::uint32_t property, const QString &value) const;

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
constexpr std::uint32_t f1 = 0xffbe;
constexpr std::uint32_t f2 = 0xffbf;
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
