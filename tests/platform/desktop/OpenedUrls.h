#pragma once

#include "Literals.h"

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <QUrlQuery>

/// Takes the addresses that would go to the browser, the mail program or the file manager.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    OpenedUrls()
    {
        for (const QString &strScheme : schemes()) {
            QDesktopServices::setUrlHandler(strScheme, this, "open");
        }
    }

    ~OpenedUrls() override
    {
        for (const QString &strScheme : schemes()) {
            QDesktopServices::unsetUrlHandler(strScheme);
        }
    }

    QUrl last() const { return list.isEmpty() ? QUrl() : list.last(); }

    /// The decoded value of a key in the query of one of them.
    QString item(int n, const QString &strKey) const
    {
        return QUrlQuery(list.value(n)).queryItemValue(strKey, QUrl::FullyDecoded);
    }

    QList<QUrl> list;

public slots:
    void open(const QUrl &url) { list.append(url); }

private:
    static QStringList schemes() { return {u"https"_qs, u"mailto"_qs, u"file"_qs}; }
};
