#include "DropWidget.h"

#include "App.h"
#include "Common.h"
#include "FileDialog.h"
#include "Literals.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMWidgets {

DropWidget::DropWidget(QWidget *parent)
    : Label(parent)
{
    setObjectName(u"DropArea"_qs);
    setAcceptDrops(true);
    setRetinaPixmap(QPixmap(u":/droparea.png"_qs));

    m_plblArea = new QLabel(tr("<H1>Drop the photos here</H1>"), this);
    m_plblArea->setAlignment(Qt::AlignCenter);
    m_plblArea->setWordWrap(true);
    m_plblArea->setObjectName(u"DropAreaText"_qs);

    m_pcmdOpen
        = new QPushButton(QIcon(u":/openfiles.png"_qs), tr("Click to open the photos"), this);
    Common::applyPushButtonDetails(m_pcmdOpen);
    connect(m_pcmdOpen, &QPushButton::clicked, this, &DropWidget::slotOpenClicked);

    auto *playoutButton = new QHBoxLayout;
    playoutButton->addStretch(1);
    playoutButton->addWidget(m_pcmdOpen);
    playoutButton->addStretch(1);
    auto *playout = new QVBoxLayout(this);
    playout->setContentsMargins(4, 5, 4, 8);
    playout->setSpacing(0);
    playout->addWidget(m_plblArea, 1);
    playout->addLayout(playoutButton);
}

void DropWidget::setOpenMode(const OpenMode &mode)
{
    m_mode = mode;
}

void DropWidget::setButtonText(const QString &str)
{
    m_pcmdOpen->setText(str);
}

void DropWidget::setAreaText(const QString &str)
{
    m_plblArea->setText(str);
}

void DropWidget::setHideAfterDrop(bool b)
{
    m_bHideAfterDrop = b;
}

QList<QUrl> DropWidget::urls() const
{
    return m_lstUrls;
}

QSize DropWidget::sizeHint() const
{
    return layout()->sizeHint();
}

QSize DropWidget::minimumSizeHint() const
{
    return layout()->minimumSize();
}

void DropWidget::slotOpenClicked()
{
    // The dialogs run event loops of their own, in which this widget may go.
    const QPointer<DropWidget> guard(this);
    App *papp = App::theApp();
    const QString strDir = papp != nullptr ? papp->openDirPath() : QString();
    QStringList lst;
    if (m_mode == OpenMode::Files) {
        lst = FileDialog::getOpenFileNames(this, tr("Open files"), strDir);
    } else {
        const QString str = QFileDialog::getExistingDirectory(this, tr("Open folder"), strDir);
        if (!str.isEmpty()) {
            lst.append(str);
        }
    }
    if (guard.isNull() || lst.isEmpty()) {
        return;
    }
    if (papp != nullptr) {
        // The parent of the given path is remembered: of a folder, the folder itself.
        papp->setOpenDirPath(
            m_mode == OpenMode::Files ? lst.constFirst() : lst.constFirst() + u"/"_qs);
    }
    QList<QUrl> lstUrls;
    lstUrls.reserve(lst.size());
    for (const QString &str : qAsConst(lst)) {
        lstUrls.append(QUrl::fromLocalFile(str));
    }
    m_lstUrls = lstUrls;
    emit dropped(lstUrls);
}

void DropWidget::dragEnterEvent(QDragEnterEvent *pe)
{
    if (pe->mimeData()->hasFormat(u"text/uri-list"_qs)) {
        // Whatever the source offers: files are only ever read.
        pe->setDropAction(Qt::CopyAction);
        pe->accept();
    }
}

void DropWidget::dropEvent(QDropEvent *pe)
{
    m_lstUrls = pe->mimeData()->urls();
    pe->setDropAction(Qt::CopyAction);
    pe->accept();
    const bool bHide = m_bHideAfterDrop;
    const QPointer<DropWidget> guard(this);
    emit dropped(m_lstUrls);
    if (bHide && !guard.isNull()) {
        hide();
    }
}

} // namespace QMWidgets
