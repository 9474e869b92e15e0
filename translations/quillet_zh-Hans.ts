<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>Quillet</name>
    <message>
        <source>dayTitle.format</source>
        <extracomment>Date pattern of a day header: month, day, weekday</extracomment>
        <translation>M月d日 EEEE</translation>
    </message>
    <message>
        <source>fullDayTitle.format</source>
        <extracomment>Date pattern of a day header's tooltip: year, month, day, weekday</extracomment>
        <translation>y年M月d日 EEEE</translation>
    </message>
    <message>
        <source>reminderTime.format</source>
        <extracomment>Date pattern of a reminder more than two days away: month, day, time</extracomment>
        <translation>M月d日 HH:mm</translation>
    </message>
</context>
</TS>
