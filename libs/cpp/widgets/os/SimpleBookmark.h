#pragma once

#include <QObject>
#include <QUrl>

namespace QMWidgets {

/// Access to a folder that the user has chosen, kept across starts of the program. Failures are
/// logged; the caller finds out when it uses the folder.
class SimpleBookmark : public QObject
{
    Q_OBJECT

public:
    explicit SimpleBookmark(QObject *pobj = nullptr);

    /// Stores a bookmark of the folder; an empty one if there is no such folder.
    void createBookmark(const QUrl &url);

    /// Reads the stored bookmark. Returns the folder; empty if nothing can be resolved, and then an
    /// earlier result stays.
    QUrl resolvingBookmark();

    /// Begin and end the use of the resolved folder, in pairs.
    void startAccessingBookmark();
    void stopAccessingBookmark();

    /// The resolved folder; empty before resolvingBookmark has succeeded.
    QUrl url() const;

private:
    Q_DISABLE_COPY(SimpleBookmark)
    QUrl m_url;
};

} // namespace QMWidgets
