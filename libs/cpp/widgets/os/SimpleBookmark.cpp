#include "SimpleBookmark.h"

#include "App.h"
#include "FolderBookmark.h"
#include "Literals.h"
#include <QDebug>

namespace QMWidgets {

namespace {

QString bookmarkKey()
{
    return u"bookmark"_qs;
}

}

SimpleBookmark::SimpleBookmark(QObject *pobj)
    : QObject(pobj)
{
}

void SimpleBookmark::createBookmark(const QUrl &url)
{
    const QString strFolder = url.isLocalFile() ? url.toLocalFile() : url.path();
    App::setSettingsValue(bookmarkKey(), Desktop::createFolderBookmark(strFolder));
}

QUrl SimpleBookmark::resolvingBookmark()
{
    const QByteArray bookmark = App::settingsValue(bookmarkKey(), QByteArray()).toByteArray();
    const QString strFolder
        = bookmark.isEmpty() ? QString() : Desktop::resolveFolderBookmark(bookmark);
    if (!strFolder.isEmpty()) {
        m_url = QUrl::fromLocalFile(strFolder);
    }
    return m_url;
}

void SimpleBookmark::startAccessingBookmark()
{
    if (m_url.isEmpty()) {
        qDebug() << "bookmark is not resolved";
    } else if (!Desktop::isFolderAccessible(m_url.toLocalFile())) {
        qDebug() << "Can not access";
    }
}

void SimpleBookmark::stopAccessingBookmark()
{
    if (m_url.isEmpty()) {
        qDebug() << "bookmark is not resolved";
    }
}

QUrl SimpleBookmark::url() const
{
    if (m_url.isEmpty()) {
        qDebug() << "bookmark is not resolved";
    }
    return m_url;
}

} // namespace QMWidgets
