#pragma once

#include <QObject>

/// The converter's own style. All of its look is in the style sheet (see ConverterResources.h), so
/// that it has nothing to add.
class CalderinStyle : public QObject
{
    Q_OBJECT

public:
    explicit CalderinStyle(QObject *parent = nullptr);

private:
    Q_DISABLE_COPY(CalderinStyle)
};
