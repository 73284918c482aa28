#include "MediaSearchDialog.h"

#include "ElidedLabel.h"
#include "Literals.h"
#include <QCoreApplication>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <QVector>
#include <utility>

namespace QMMultiMedia {

namespace {

constexpr qint64 paintIntervalMs = 40;

/// Keeps widgets at their size while their texts change in quick succession.
///
/// A text that may change the layout is measured for every folder, whether it is painted or not:
/// that was more than half of a scan's time.
class SizeKeeper
{
public:
    explicit SizeKeeper(QVector<QWidget *> widgets)
        : m_widgets(std::move(widgets))
    {
        for (QWidget *widget : qAsConst(m_widgets)) {
            widget->setFixedSize(widget->size());
        }
    }

    ~SizeKeeper()
    {
        for (QWidget *widget : qAsConst(m_widgets)) {
            widget->setMinimumSize(0, 0);
            widget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        }
    }

private:
    Q_DISABLE_COPY(SizeKeeper)
    QVector<QWidget *> m_widgets;
};

}

MediaSearchDialog::MediaSearchDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"MediaSearchDialog"_qs);
    auto *title = new QLabel(
        tr("<CENTER><H2>Searching for the media files.<br>Please, wait...</H2></CENTER>"), this);
    m_plblFile = new ElidedLabel(ElidedLabel::Kind::Plain, this);
    m_plblCounters = new QLabel(this);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(u"SearchStopButton"_qs);
    connect(cancel, &QPushButton::clicked, this, &MediaSearchDialog::slotCancel);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(m_plblFile);
    layout->addWidget(m_plblCounters);
    layout->addWidget(cancel);
    showProgress(QString());
}

void MediaSearchDialog::setUrls(const QList<QUrl> &urls)
{
    MediaScan::setUrls(urls);
    m_bSkipStart = false;
    reset(); // the last scan's counters aren't this one's
    showProgress(QString());
}

void MediaSearchDialog::slotStart()
{
    if (m_bSearching || m_bSkipStart) {
        m_bSkipStart = false;
        return;
    }
    {
        const QScopedValueRollback<bool> searching(m_bSearching, true);
        const SizeKeeper keeper(
            isVisible() ? QVector<QWidget *> {m_plblFile, m_plblCounters} : QVector<QWidget *>());
        m_sincePainted.start();
        search();
    }
    setUpdatesEnabled(true);
    accept();
}

void MediaSearchDialog::slotCancel()
{
    cancel();
    if (!m_bSearching) {
        m_bSkipStart = true;
        reset();
    }
    QDialog::reject();
}

void MediaSearchDialog::reject()
{
    slotCancel();
}

bool MediaSearchDialog::isMediaFile(const QString &file)
{
    return MediaScan::isMediaFile(file);
}

void MediaSearchDialog::fileSeen(const QString &file)
{
    if (m_nFiles < 5 || m_nFiles % 10 == 0) {
        showProgress(file);
    }
}

void MediaSearchDialog::breathe()
{
    // Painting the counters for every small folder would take most of the scan's time.
    const bool paint = m_sincePainted.elapsed() >= paintIntervalMs;
    setUpdatesEnabled(paint);
    QCoreApplication::processEvents();
    if (paint) {
        m_sincePainted.restart();
    }
}

void MediaSearchDialog::showProgress(const QString &file)
{
    m_plblFile->setText(file);
    m_plblCounters->setText(
        tr("<H3>Video Files: %1<BR>Audio Files: %2<BR>Image Files: %3<BR>Text Files: %4<BR>"
           "Other Files: %5<BR></H3>")
            .arg(m_lstVideo.size())
            .arg(m_lstAudio.size())
            .arg(m_lstArtwork.size())
            .arg(m_lstText.size())
            .arg(m_lstUnsuported.size()));
}

}
