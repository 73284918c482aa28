#pragma once

#include "Literals.h"

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <QUrlQuery>

/// Takes the addresses that would go to the browser or the mail program.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser()
    {
        for (const QString &strScheme : schemes()) {
            QDesktopServices::setUrlHandler(strScheme, this, "open");
        }
    }

    ~Browser() override
    {
        for (const QString &strScheme : schemes()) {
            QDesktopServices::unsetUrlHandler(strScheme);
        }
    }

    QString query(const QString &strKey) const
    {
        return QUrlQuery(last).queryItemValue(strKey, QUrl::FullyDecoded);
    }

    QUrl last;
    int count = 0;

public slots:
    void open(const QUrl &url)
    {
        last = url;
        ++count;
    }

private:
    static QStringList schemes() { return {u"https"_qs, u"mailto"_qs}; }
};
