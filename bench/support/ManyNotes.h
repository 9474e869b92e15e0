#pragma once

#include "model/Note.h"
#include "support/TestClock.h"

/// Notes as people write them, one every minute, the newest first: a third with tags, some replies, some
/// links.
inline QList<Note> manyNotes(int count)
{
    const QStringList texts{
        QStringLiteral("第%1条 买牛奶和面包，顺便取快递 #家 #购物"),
        QStringLiteral("%1. call the bank about the new card, 14:30, costs €12.50"),
        QStringLiteral("Rapport n° %1 à relire avant vendredi, page 12/30"),
        QStringLiteral("https://www.example.com/articles/%1/how-to-keep-notes?from=feed"),
        QStringLiteral("明天下午3点 交房租 ¥%1 2026年3月5日 #家"),
        QStringLiteral("\"%1\" — ein Satz mit Anführungszeichen\\und Schrägstrich"),
    };
    QList<Note> notes;
    for (int i = 0; i < count; ++i) {
        Note note{QUuid::createUuid(), texts[i % texts.size()].arg(i), {}, {}, {},
            at("2026-03-01T00:00:00Z") - std::chrono::minutes(i)};
        if (i % 10 == 3) {
            note.quote = notes[i - 3].text;
            note.quoteID = notes[i - 3].id;
        }
        if (note.text.startsWith(QStringLiteral("https")))
            note.link = note.text;
        notes.append(note);
    }
    return notes;
}
