// Reads every #include under src/ and holds it against the layers that CMake was told of.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <functional>

class LayersTest final : public QObject
{
    Q_OBJECT

private:
    /// Files, relative to src/, and what of Quillet each includes.
    QHash<QString, QStringList> m_includes;
    QHash<QString, QSet<QString>> m_mayUse;
    QHash<QString, QStringList> m_foreign;

    static QString layer(const QString &file) { return file.section(u'/', 0, 0); }

private Q_SLOTS:
    void initTestCase()
    {
        QFile layers(QStringLiteral(LAYERS_FILE));
        QVERIFY(layers.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(layers.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const QStringList used = line.section(u':', 1).split(u';', Qt::SkipEmptyParts);
            m_mayUse.insert(line.section(u':', 0, 0), QSet(used.begin(), used.end()));
        }
        const QString root = QStringLiteral(SOURCE_FOLDER);
        static const QRegularExpression include(
            QStringLiteral("^\\s*#\\s*include\\s+[\"<]([^\">]+)[\">]"), QRegularExpression::MultilineOption);
        for (QDirIterator it(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                 QDirIterator::Subdirectories);
             it.hasNext();) {
            QFile file(it.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString name = file.fileName().sliced(root.size() + 1);
            m_includes.insert(name, {});
            auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                const QString target = matches.next().captured(1);
                (m_mayUse.contains(layer(target)) ? m_includes : m_foreign)[name].append(target);
            }
        }
        QVERIFY(m_includes.size() > 20);
    }

    void a_layer_includes_only_the_layers_named_for_it()
    {
        QStringList wrong;
        for (auto it = m_includes.cbegin(); it != m_includes.cend(); ++it) {
            for (const QString &target : it.value()) {
                if (layer(target) != layer(it.key()) && !m_mayUse[layer(it.key())].contains(layer(target)))
                    wrong.append(it.key() + QStringLiteral(" includes ") + target);
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    void a_room_of_ui_includes_only_those_below_it()
    {
        const QStringList rooms{QStringLiteral("looks"), QStringLiteral("dialogs"), QStringLiteral("lists"),
            QStringLiteral("composer"), QStringLiteral("panel")};
        const QString shared = QStringLiteral("ui/panel/PanelState.h"); // what lists and composer act on
        QStringList wrong;
        for (auto it = m_includes.cbegin(); it != m_includes.cend(); ++it) {
            if (layer(it.key()) != QStringLiteral("ui"))
                continue;
            const auto level = rooms.indexOf(it.key().section(u'/', 1, 1));
            QVERIFY2(level >= 0, qPrintable(it.key()));
            for (const QString &target : it.value()) {
                if (target != shared && layer(target) == QStringLiteral("ui")
                    && rooms.indexOf(target.section(u'/', 1, 1)) > level)
                    wrong.append(it.key() + QStringLiteral(" includes ") + target);
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    void no_headers_include_each_other_in_a_circle()
    {
        QHash<QString, int> state; // 1: on the way, 2: done
        QStringList circle;
        const std::function<void(const QString &)> visit = [&](const QString &file) {
            state[file] = 1;
            for (const QString &target : m_includes.value(file)) {
                if (state.value(target) == 1)
                    circle.append(file + QStringLiteral(" -> ") + target);
                else if (state.value(target) == 0)
                    visit(target);
            }
            state[file] = 2;
        };
        for (const QString &file : m_includes.keys()) {
            if (state.value(file) == 0)
                visit(file);
        }
        QVERIFY2(circle.isEmpty(), qPrintable(circle.join(u'\n')));
    }

    void a_library_is_included_where_it_is_wrapped_and_nowhere_else()
    {
        const QList<QPair<QString, QStringList>> wrapped{
            {QStringLiteral("unicode/"), {QStringLiteral("foundation/")}},
            {QStringLiteral("simdjson"), {QStringLiteral("model/NoteCoding.cpp")}},
            {QStringLiteral("xcb/"), {QStringLiteral("desktop/")}},
            {QStringLiteral("QDBus"), {QStringLiteral("desktop/")}},
            {QStringLiteral("QNetwork"), {QStringLiteral("desktop/")}},
        };
        QStringList wrong;
        for (auto it = m_foreign.cbegin(); it != m_foreign.cend(); ++it) {
            for (const QString &target : it.value()) {
                for (const auto &[prefix, homes] : wrapped) {
                    const bool isHome = std::any_of(homes.begin(), homes.end(),
                        [&](const QString &home) { return it.key().startsWith(home); });
                    if (target.startsWith(prefix) && !isHome)
                        wrong.append(it.key() + QStringLiteral(" includes ") + target);
                }
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }
};

QTEST_APPLESS_MAIN(LayersTest)
#include "tst_layers.moc"
