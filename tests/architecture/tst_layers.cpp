// Compares every #include under src/ with the layers that are declared in CMake.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

class LayersTest final : public QObject
{
    Q_OBJECT

    QMultiHash<QString, QString> m_includes; ///< of files, relative to src/, by files
    QMultiHash<QString, QString> m_foreign;  ///< of other libraries' headers
    QHash<QString, QSet<QString>> m_mayUse;

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
            u"^\\s*#\\s*include\\s+[\"<]([^\">]+)[\">]"_s, QRegularExpression::MultilineOption);
        for (QDirIterator it(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
             it.hasNext();) {
            QFile file(it.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString name = file.fileName().sliced(root.size() + 1);
            auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext()) {
                const QString target = matches.next().captured(1);
                (m_mayUse.contains(layer(target)) ? m_includes : m_foreign).insert(name, target);
            }
        }
        QVERIFY(m_includes.size() > 100);
    }

    void a_layer_includes_only_the_layers_named_for_it()
    {
        QStringList wrong;
        for (const auto &[file, target] : m_includes.asKeyValueRange()) {
            if (layer(target) != layer(file) && !m_mayUse[layer(file)].contains(layer(target)))
                wrong.append(file + u" includes "_s + target);
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    void a_room_of_ui_includes_only_those_below_it()
    {
        const QStringList rooms{u"looks"_s, u"dialogs"_s, u"lists"_s, u"composer"_s, u"panel"_s};
        const QString shared = u"ui/panel/PanelState.h"_s; // what lists and composer act on
        QStringList wrong;
        for (const auto &[file, target] : m_includes.asKeyValueRange()) {
            if (layer(file) != u"ui"_s || layer(target) != u"ui"_s || target == shared)
                continue;
            const auto level = rooms.indexOf(file.section(u'/', 1, 1));
            QVERIFY2(level >= 0, qPrintable(file));
            if (rooms.indexOf(target.section(u'/', 1, 1)) > level)
                wrong.append(file + u" includes "_s + target);
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    void no_headers_include_each_other_in_a_circle()
    {
        QHash<QString, int> state; // 1: on the way, 2: done
        QStringList circle;
        const std::function<void(const QString &)> visit = [&](const QString &file) {
            state[file] = 1;
            for (const QString &target : m_includes.values(file)) {
                if (state.value(target) == 1)
                    circle.append(file + u" -> "_s + target);
                else if (state.value(target) == 0)
                    visit(target);
            }
            state[file] = 2;
        };
        for (const QString &file : m_includes.uniqueKeys()) {
            if (state.value(file) == 0)
                visit(file);
        }
        QVERIFY2(circle.isEmpty(), qPrintable(circle.join(u'\n')));
    }

    void a_library_is_included_where_it_is_wrapped_and_nowhere_else()
    {
        const QList<QPair<QString, QString>> wrapped{{u"unicode/"_s, u"foundation/"_s},
            {u"simdjson"_s, u"model/NoteCoding.cpp"_s}, {u"xcb/"_s, u"desktop/"_s},
            {u"QDBus"_s, u"desktop/"_s}, {u"QNetwork"_s, u"desktop/"_s}};
        QStringList wrong;
        for (const auto &[file, target] : m_foreign.asKeyValueRange()) {
            for (const auto &[prefix, home] : wrapped) {
                if (target.startsWith(prefix) && !file.startsWith(home))
                    wrong.append(file + u" includes "_s + target);
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }
};

QTEST_APPLESS_MAIN(LayersTest)
#include "tst_layers.moc"
