#include "AddButtonAction.h"
#include "AudioPlayer.h"
#include "DropWidget.h"
#include "ElidedLabel.h"
#include "Label.h"
#include "ListView.h"
#include "Literals.h"
#include "MainPage.h"
#include "PlayListModel.h"
#include "TimeInfo.h"
#include "TracksListDelegate.h"
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

using QMMultiMedia::AudioPlayer;
using QMMultiMedia::ElidedLabel;

namespace {

QString timeText(qint64 ms)
{
    return MTools::TimeInfo::msecsToTime(ms).toString(u"hh:mm:ss"_qs);
}

/// A row with the widgets in its middle.
QHBoxLayout *centred(const QList<QWidget *> &widgets)
{
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    for (QWidget *widget : widgets) {
        row->addWidget(widget);
    }
    row->addStretch(1);
    return row;
}

}

void MainPage::createPlayWidgets()
{
    m_plblFileName = new ElidedLabel(ElidedLabel::Kind::Heading, this);
    m_plblFileName->setAlignment(Qt::AlignCenter);
    m_plblFileName->setObjectName(u"m_plblFileName"_qs);
    m_plblPlayed = new QLabel(this);
    m_plblRemained = new QLabel(this);
    m_psldTimeLine = new QSlider(Qt::Horizontal, this);
    m_psldTimeLine->setAccessibleName(tr("Position"));

    m_pcmdPlayAndPause = new QPushButton(this);
    m_pcmdPlayAndPause->setFlat(true);
    m_pcmdPlayAndPause->setCheckable(true);
    m_pcmdPlayAndPause->setObjectName(u"m_pcmdPlayAndPause"_qs);
    m_pcmdPlayAndPause->setToolTip(tr("Play or pause"));
    m_pcmdPlayAndPause->setAccessibleName(tr("Play or pause"));
    m_pcmdStop = new QPushButton(this);
    m_pcmdStop->setFlat(true);
    m_pcmdStop->setObjectName(u"m_pcmdStop"_qs);
    m_pcmdStop->setToolTip(tr("Stop"));
    m_pcmdStop->setAccessibleName(tr("Stop"));
}

QWidget *MainPage::createPlayPage()
{
    auto *page = new QWidget(this);
    page->setObjectName(u"m_pwgtPlayPage"_qs);
    m_plblPlayDecoration = new QMWidgets::Label(page);
    m_plblPlayDecoration->setObjectName(u"m_plblPlayDecoration"_qs);
    m_plblPlayDecoration->setRetinaPixmap(QPixmap(u":/Box.png"_qs));

    // Time runs from left to right in every language, as on all players.
    m_plblPlayDecoration->setLayoutDirection(Qt::LeftToRight);
    auto *timeLine = new QHBoxLayout;
    timeLine->addWidget(m_plblPlayed);
    timeLine->addWidget(m_psldTimeLine);
    timeLine->addWidget(m_plblRemained);
    QHBoxLayout *buttons = centred({m_pcmdStop, m_pcmdPlayAndPause});
    buttons->setMargin(0);
    buttons->setSpacing(0);
    auto *rows = new QVBoxLayout(m_plblPlayDecoration);
    rows->addLayout(centred({m_plblFileName}));
    rows->addLayout(timeLine);
    rows->addLayout(buttons);

    auto *layout = new QHBoxLayout(page);
    layout->setMargin(2);
    layout->addWidget(m_plblPlayDecoration);
    return page;
}

void MainPage::createTrackMenu()
{
    m_pmenuTrack = new QMenu(this);
    m_pmenuTrack->addAction(
        QIcon(u":/noteplay.png"_qs), tr("Play"), this, QOverload<>::of(&MainPage::slotPlay));
    m_pmenuTrack->addAction(
        QIcon(u":/close.png"_qs), tr("Remove from list"), this, &MainPage::slotRemove);

    auto *button = new AddButtonAction(this);
    connect(button, &AddButtonAction::triggered, this, &MainPage::slotButtonClicked);
    m_pdelegate->addAction(button);
    connect(m_pdelegate, &TracksListDelegate::play, this,
        QOverload<QModelIndex>::of(&MainPage::slotPlay));
}

void MainPage::connectPlayer()
{
    AudioPlayer *player = AudioPlayer::instance();
    connect(m_pcmdStop, &QPushButton::clicked, this, &MainPage::slotStop);
    connect(player, &AudioPlayer::stopped, this, &MainPage::slotStop);
    connect(player, &AudioPlayer::finished, this, &MainPage::slotStop);
    connect(m_pcmdPlayAndPause, &QPushButton::clicked, this, &MainPage::slotPlayOrPause);
    connect(m_psldTimeLine, &QSlider::valueChanged, this, &MainPage::slotPlayPositionChanged);
}

void MainPage::slotPlay(QModelIndex index)
{
    const QString path = index.data(QMMultiMedia::PlayListModel::PathRole).toString();
    AudioPlayer::instance()->play(path, false);
    m_pstkModes->setCurrentWidget(m_pwgtPlayPage);
    m_ptimerPlayInfo->start();
    m_pcmdPlayAndPause->setChecked(false);
    slotUpdatePlayInfo();
}

void MainPage::slotPlay()
{
    if (m_indexTrack.isValid() && m_indexTrack.row() < m_pmodel->rowCount()) {
        slotPlay(m_indexTrack);
    }
}

void MainPage::slotUpdatePlayInfo()
{
    const AudioPlayer *player = AudioPlayer::instance();
    const qint64 duration = player->duration();
    if (duration <= 0) {
        return;
    }
    const QString name = QFileInfo(player->fileName()).fileName();
    m_plblFileName->setText(u"<H2>%1</H2>"_qs.arg(name.toHtmlEscaped()));
    const qint64 position = player->position();
    m_plblPlayed->setText(timeText(position));
    m_plblRemained->setText(timeText(player->remainingDuration()));
    const QSignalBlocker blocker(m_psldTimeLine);
    m_psldTimeLine->setValue(
        static_cast<int>(position * (m_psldTimeLine->maximum() + 1) / (duration + 1)));
}

void MainPage::slotPlayPositionChanged(int nPos)
{
    AudioPlayer *player = AudioPlayer::instance();
    player->setPosition((qint64 {nPos} + 1) * player->duration() / 100);
}

void MainPage::slotPlayOrPause()
{
    if (m_pcmdPlayAndPause->isChecked()) {
        AudioPlayer::instance()->pause();
        m_ptimerPlayInfo->stop();
    } else {
        AudioPlayer::instance()->play();
        m_ptimerPlayInfo->start();
    }
}

void MainPage::slotStop()
{
    m_pstkModes->setCurrentWidget(m_pdropWidget);
    AudioPlayer::instance()->slotStop();
    m_ptimerPlayInfo->stop();
}

void MainPage::slotButtonClicked(QModelIndex index, QPoint pt)
{
    m_indexTrack = index;
    m_pmenuTrack->exec(m_plstTracks->mapToGlobal(QPoint(-20, 28)) + pt);
}
