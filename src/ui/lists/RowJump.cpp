#include "ui/lists/RowJump.h"

#include "ui/looks/Design.h"

#include <QEasingCurve>

#include <utility>

RowJump::RowJump(QObject *parent)
    : QObject(parent)
{
    m_way.setObjectName(QStringLiteral("scrolling"));
    m_way.setDuration(int(Design::scrollDuration.count()));
    m_way.setEasingCurve(QEasingCurve::OutCubic);
    m_way.setStartValue(0.0);
    m_way.setEndValue(1.0);
    connect(&m_way, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        const double before = std::exchange(m_progress, value.toDouble());
        Q_EMIT moved(before < 1 ? (m_progress - before) / (1 - before) : 1);
    });
    m_light.setObjectName(QStringLiteral("flash"));
    m_light.setDuration(int(Design::flashDuration.count()));
    m_light.setKeyValues({{0, 0.0}, {0.1, 1.0}, {0.6, 1.0}, {1, 0.0}});
    connect(&m_light, &QVariantAnimation::valueChanged, this, &RowJump::lightChanged);
}

void RowJump::start(std::function<QModelIndex()> target)
{
    m_way.stop();
    m_light.stop();
    m_findTarget = std::move(target);
    m_target = QModelIndex();
    m_progress = 0;
    m_isLit = false;
    m_way.start();
}

int RowJump::row()
{
    if (!m_target.isValid() && m_findTarget)
        m_target = m_findTarget();
    return m_target.row();
}

void RowJump::lightUp()
{
    if (!std::exchange(m_isLit, true))
        m_light.start();
}

double RowJump::lightOn(int row) const
{
    const bool isLit = row == m_target.row() && m_light.state() == QVariantAnimation::Running;
    return isLit ? m_light.currentValue().toDouble() : 0;
}
