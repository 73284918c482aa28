#pragma once

#include <QString>
#include <QTime>

namespace MTools {

/// Times as the window shows them.
class TimeInfo
{
public:
    /// A time in milliseconds as a time of day; it wraps after 24 hours, a negative one is 0.
    static QTime msecsToTime(const qint64 &msecs);
};

/// The current local time as "yyyy-MM-dd_hh:mm:ss:zzz", 23 characters.
QString createTimeStamp();

}
