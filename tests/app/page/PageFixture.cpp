#include "PageFixture.h"

#include "App.h"
#include "BatchDialog.h"
#include "ConverterResources.h"
#include "ListView.h"
#include "MediaMaker.h"
#include "MediaSearchDialog.h"
#include "PlayListModel.h"
#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>

using MediaMaker::waitFor;

void PageFixture::SetUp()
{
    initConverterResources();
    qputenv("SDL_AUDIODRIVER", "dummy");
    QMWidgets::App::settings()->clear();
    set(u"DestinationPath"_qs, destination());
    set(u"KeyPlaySoundAfter"_qs, false);
    set(u"KeyOpenFolderAfter"_qs, false);
    set(u"AutoReminder"_qs, false);
    QDir().mkpath(destination());
    showPage();
}

void PageFixture::TearDown()
{
    m_page.reset();
}

void PageFixture::set(const QString &key, const QVariant &value)
{
    QMWidgets::App::setSettingsValue(key, value);
}

QString PageFixture::touch(const QString &name) const
{
    QDir().mkpath(QFileInfo(path(name)).absolutePath());
    EXPECT_TRUE(MediaMaker::writeFile(path(name), "none"));
    return path(name);
}

QString PageFixture::tone(const QString &name, double seconds) const
{
    EXPECT_TRUE(MediaMaker::sox({u"-n"_qs, u"-r"_qs, u"44100"_qs, u"-c"_qs, u"2"_qs, path(name),
        u"synth"_qs, QString::number(seconds), u"sine"_qs, u"440"_qs}));
    return path(name);
}

void PageFixture::showPage()
{
    m_page.reset();
    m_page = std::make_unique<MainPage>(nullptr);
    m_page->show();
}

void PageFixture::drop(const QStringList &files)
{
    QList<QUrl> urls;
    for (const QString &file : files) {
        urls << QUrl::fromLocalFile(file);
    }
    auto *scan = m_page->findChild<QMMultiMedia::MediaSearchDialog *>();
    QSignalSpy finished(scan, &QDialog::finished);
    emit list()->dropped(urls);
    EXPECT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
    QCoreApplication::processEvents();
}

QStringList PageFixture::tracks() const
{
    return m_page->findChild<QMMultiMedia::PlayListModel *>()->playList();
}

QPushButton *PageFixture::button(const char *name) const
{
    return m_page->findChild<QPushButton *>(QLatin1String(name));
}

QString PageFixture::infoText() const
{
    return m_page->findChild<QLabel *>(u"InfoLabel"_qs)->text();
}

ListView *PageFixture::list() const
{
    return m_page->findChild<ListView *>();
}

QWidget *PageFixture::shownMode() const
{
    return m_page->findChild<QStackedWidget *>(u"m_pstkModes"_qs)->currentWidget();
}

QStringList PageFixture::runFolders() const
{
    return QDir(destination()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

BatchDialog *PageFixture::dialog() const
{
    return m_page->findChild<BatchDialog *>();
}

QPushButton *PageFixture::dialogButton(const QString &text) const
{
    const auto buttons = dialog()->findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->isVisible() && candidate->text() == text) {
            return candidate;
        }
    }
    return nullptr;
}
