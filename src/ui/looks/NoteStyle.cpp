#include "ui/looks/NoteStyle.h"

#include "text/L10n.h"
#include "ui/looks/Typeface.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPainter>

namespace {
QColor inAppearance(bool isDark, Design::Tint tint)
{
    return QColor(isDark ? tint.dark : tint.light);
}

void setRegion(QFont &font, Typeface::Region region)
{
    using Typeface::Region;
    struct Families {
        QString system;
        QStringList all;
    };
    static QHash<Region, Families> known;
    // The system's own name may be "Sans Serif", which stands for another family in each locale.
    const QString system = QFontInfo(QApplication::font()).family();
    Families &families = known[region];
    if (families.system != system) {
        const auto writing = region == Region::Traditional ? QFontDatabase::TraditionalChinese
                             : region == Region::Japanese  ? QFontDatabase::Japanese
                             : region == Region::Korean    ? QFontDatabase::Korean
                                                           : QFontDatabase::SimplifiedChinese;
        families = {system, Typeface::families(region, system, QFontDatabase::families(writing))};
    }
    font.setFamilies(families.all);
    // Qt remembers what it loaded by the first family and the strategy: of two fonts that differ in other
    // families only, the second would get those of the first. These strategies matter for bitmap fonts alone.
    font.setStyleStrategy(region == Region::Traditional ? QFont::PreferQuality
                          : region == Region::Japanese  ? QFont::PreferMatch
                          : region == Region::Korean    ? QFont::PreferDevice
                                                        : QFont::PreferOutline);
}

/// That of texts which leave a choice.
Typeface::Region regionOfInterface()
{
    static const Typeface::Region region = Typeface::region(u"中", L10n::currentLanguage());
    return region;
}

/// Made once, so that what Qt finds for it stays with it.
struct SystemFont {
    QFont made;
    QFont system;

    QFont withSize(int pixelSize, bool isBold = false)
    {
        if (system != QApplication::font() || made.pixelSize() != pixelSize) {
            made = system = QApplication::font();
            setRegion(made, regionOfInterface());
            made.setPixelSize(pixelSize);
            made.setBold(isBold);
        }
        return made;
    }
};
} // namespace

bool NoteStyle::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5;
}

QPalette NoteStyle::palette(bool isDark)
{
    QPalette made;
    const auto set = [&made, isDark](QPalette::ColorRole role, Design::Tint tint) {
        made.setColor(role, inAppearance(isDark, tint));
    };
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        set(role, Design::text);
    set(QPalette::PlaceholderText, Design::metaText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        made.setColor(QPalette::Disabled, role, inAppearance(isDark, Design::metaText));
    set(QPalette::Window, Design::ground);
    set(QPalette::Base, Design::fieldGround);
    set(QPalette::AlternateBase, Design::hoverGround);
    set(QPalette::ToolTipBase, Design::fieldGround);
    set(QPalette::Button, Design::hoverGround);
    set(QPalette::Mid, Design::hairline);
    set(QPalette::Highlight, Design::selectionGround);
    set(QPalette::HighlightedText, Design::text);
    set(QPalette::Link, Design::tagText);
    return made;
}

QColor NoteStyle::color(const QPalette &palette, Design::Tint tint)
{
    return inAppearance(isDark(palette), tint);
}

QColor NoteStyle::segmentColor(NoteHighlighting::SegmentKind kind, const QPalette &palette)
{
    switch (kind) {
    case NoteHighlighting::SegmentKind::Plain:
        return {};
    case NoteHighlighting::SegmentKind::Number:
        return color(palette, Design::numberText);
    case NoteHighlighting::SegmentKind::Tag:
        return color(palette, Design::tagText);
    case NoteHighlighting::SegmentKind::Match:
        return color(palette, Design::matchText);
    }
    Q_UNREACHABLE();
}

QFont NoteStyle::font()
{
    static SystemFont font;
    return font.withSize(Design::bodySize);
}

QFont NoteStyle::headerFont()
{
    static SystemFont font;
    return font.withSize(Design::bodySize, true);
}

QFont NoteStyle::quoteFont()
{
    static SystemFont font;
    return font.withSize(Design::smallSize);
}

QFont NoteStyle::fontFor(QStringView text, const QFont &font)
{
    const Typeface::Region region = Typeface::region(text, L10n::currentLanguage());
    if (region == Typeface::Region::None || region == regionOfInterface())
        return font;
    QFont other = font;
    setRegion(other, region);
    return other;
}

void NoteStyle::drawLine(QPainter &painter, const QRect &rect, const QString &text, Qt::Alignment alignment)
{
    const QFont font = painter.font();
    painter.setFont(fontFor(text, font));
    painter.drawText(rect, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
    painter.setFont(font);
}

QLabel *NoteStyle::newLabel(const QString &text, const QFont &font, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    return label;
}

void NoteStyle::fillRounded(QPainter &painter, const QRectF &rect, int radius, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}

void NoteStyle::outlineFocus(QPainter &painter, const QRectF &rect, int radius, const QPalette &palette)
{
    constexpr qreal inset = Design::focusWidth / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color(palette, Design::focusOutline), Design::focusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius, radius);
}
