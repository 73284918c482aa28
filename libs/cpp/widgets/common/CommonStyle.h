#pragma once

#include <QObject>

namespace QMWidgets {

/// Base of an application's style.
class CommonStyle : public QObject
{
    Q_OBJECT

public:
    explicit CommonStyle(QObject *parent = nullptr);

    /// The style sheet; empty here.
    virtual QString cssStyle() const;

    /// A length in pixels that grows with the screen: its smaller side divided by fDivisor,
    /// truncated. fDivisor isn't 0.
    static int sdp(float fDivisor);
};

} // namespace QMWidgets
