// make-pictures DIR LANGUAGE [NAME…]: a PNG of every window of the program in its states, as
// DIR/NAME.png. HOME has to be a scratch folder: settings are written, and a sample folder is
// scanned.

#include "AboutDialog.h"
#include "App.h"
#include "AppSettingsDialog.h"
#include "AppUpdateDialog.h"
#include "AudioPlayer.h"
#include "BatchDialog.h"
#include "ConverterResources.h"
#include "CssEditor.h"
#include "ErrorsDialog.h"
#include "HelpDialog.h"
#include "JoinDialog.h"
#include "Literals.h"
#include "MainPage.h"
#include "MediaSearchDialog.h"
#include "MMessageBox.h"
#include "PlayListModel.h"
#include "ProgramIdentity.h"
#include "PromoMenuBar.h"
#include "RateAppStoreDialog.h"
#include "TellDialog.h"
#include "TranslationResources.h"
#include "TranslationsManager.h"

#include <functional>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QThread>
#include <QTimer>

namespace {

/// Makes the pictures of one language.
class Photographer
{
public:
    Photographer(QString folder, QStringList wanted)
        : m_folder(std::move(folder))
        , m_wanted(std::move(wanted))
    {
    }

    /// Shows the widget, lets it settle and saves what it looks like.
    void take(const QString &name, QWidget *widget, int settleMs = 60) const
    {
        if (!m_wanted.isEmpty() && !m_wanted.contains(name)) {
            return;
        }
        widget->show();
        settle(settleMs);
        widget->grab().save(m_folder + u"/"_qs + name + u".png"_qs);
    }

    static void settle(int ms)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < ms) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            QThread::msleep(5);
        }
    }

private:
    QString m_folder;
    QStringList m_wanted;
};

QStringList trackNames(int count)
{
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files << QDir::homePath() + QString::asprintf("/Music/Album/%05d Track.flac", i);
    }
    return files;
}

void takeMainPage(const Photographer &photographer)
{
    QMWidgets::App::setSettingsValue(u"Language"_qs, QMWidgets::App::currentLanguage());
    MainPage page(nullptr);
    page.promoMenuBar()->setupAppsMenu(u"audio"_qs);
    QMWidgets::App::setMainWidget(&page);
    page.setWindowTitle(QCoreApplication::applicationName());
    photographer.take(u"main-empty"_qs, &page);
    auto *model = page.findChild<QMMultiMedia::PlayListModel *>();
    auto *list = page.findChild<QListView *>();
    const QString sample = QDir::homePath() + u"/Music/"_qs;
    QStringList tracks;
    const QStringList names = QDir(sample).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        tracks << sample + name;
    }
    model->setPlayList(tracks);
    list->setCurrentIndex(model->index(1, 0));
    photographer.take(u"main-list"_qs, &page);
    QMetaObject::invokeMethod(&page, "slotPlay", Q_ARG(QModelIndex, model->index(1, 0)));
    photographer.take(u"main-preview"_qs, &page, 1500);
    QMetaObject::invokeMethod(&page, "slotStop");
    model->setPlayList({sample
        + u"A very long name of a track that goes on and on, as names of live recordings do, "
          "with the place and the year (Köln 1975, remastered).flac"_qs});
    photographer.take(u"main-long-name"_qs, &page);
    model->setPlayList(trackNames(10000));
    photographer.take(u"main-10000"_qs, &page);
    const QList<QMenu *> menus = page.findChildren<QMenu *>();
    int number = 0;
    for (QMenu *menu : menus) {
        if (!menu->actions().isEmpty() && menu->parentWidget() != &page) {
            photographer.take(QString::asprintf("menu-%d", ++number), menu);
            menu->hide();
        }
    }
}

void takeRun(const Photographer &photographer)
{
    QWidget page;
    page.resize(420, 620);
    const auto pictureOf
        = [&](const QString &name, const std::function<void(BatchDialog &)> &state) {
              BatchDialog dialog(&page);
              dialog.setFixedSize(page.size());
              dialog.show();
              state(dialog);
              photographer.take(name, &dialog);
              dialog.hide();
          };
    const auto running = [](BatchDialog &dialog) {
        dialog.slotShowCurrentFile(u"02 A song with a name of middling length"_qs);
        dialog.slotProgressChanged(42);
        dialog.slotFileProgressChanged(65);
    };
    pictureOf(u"run"_qs, running);
    pictureOf(u"run-paused"_qs, [&](BatchDialog &dialog) {
        running(dialog);
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isCheckable()) {
                button->click();
            }
        }
    });
    pictureOf(u"run-done"_qs, [](BatchDialog &dialog) { dialog.slotProgressChanged(100); });
    const QString log = u"Can not convert: /home/user/Music/broken.mp3\n"
                        "Can not convert: /home/user/Music/<b>odd</b> name.wav\n"_qs;
    pictureOf(u"run-errors"_qs, [&](BatchDialog &dialog) {
        dialog.slotSetErrors(log);
        dialog.slotProgressChanged(100);
    });
    ErrorsDialog errors(nullptr);
    errors.setText(log);
    photographer.take(u"errors"_qs, &errors);
    // The warning is modal: the picture is taken while it waits.
    BatchDialog dialog(&page);
    dialog.setFixedSize(page.size());
    dialog.show();
    running(dialog);
    QTimer::singleShot(300, &dialog, [&] {
        if (QWidget *box = QApplication::activeModalWidget()) {
            photographer.take(u"run-no-space"_qs, box);
            box->close();
        }
    });
    dialog.slotNotEnoughtFreeSpace();
    photographer.take(u"run-no-space-paused"_qs, &dialog);
}

void takeSettings(const Photographer &photographer)
{
    AppSettingsDialog settings(nullptr);
    settings.show();
    auto *tabs = settings.findChild<QTabWidget *>();
    for (int i = 0; tabs != nullptr && i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        photographer.take(QString::asprintf("settings-%d", i + 1), &settings);
    }
}

template <typename Dialog> void takeDialog(const Photographer &photographer, const QString &name)
{
    Dialog dialog(nullptr);
    photographer.take(name, &dialog);
}

void takeDialogs(const Photographer &photographer)
{
    takeDialog<QMWidgets::AboutDialog>(photographer, u"about"_qs);
    takeDialog<QMWidgets::RateAppStoreDialog>(photographer, u"rate"_qs);
    takeDialog<QMWidgets::TellDialog>(photographer, u"share"_qs);
    takeDialog<QMWidgets::JoinDialog>(photographer, u"join"_qs);
    QMWidgets::HelpDialog introduction(nullptr);
    const QStringList slides = QMWidgets::App::introductionSlides();
    for (const QString &slide : slides) {
        introduction.addSlide(slide);
    }
    introduction.show();
    photographer.take(u"introduction"_qs, &introduction, 600);
    takeDialog<AppUpdateDialog>(photographer, u"update"_qs);
    takeDialog<QMMultiMedia::MediaSearchDialog>(photographer, u"search"_qs);
    takeDialog<QMWidgets::CssEditor>(photographer, u"style-editor"_qs);
}

}

int main(int argc, char **argv)
{
    ensureUtf8FileNames();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QMWidgets::App app(argc, argv, programOrganisation(), programName());
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        qWarning("make-pictures DIR LANGUAGE [NAME...]");
        return 2;
    }
    QMWidgets::App::setSettingsValue(u"Language"_qs, arguments.at(2));
    // A user's folder instead of that of this run.
    QMWidgets::App::setSettingsValue(u"DestinationPath"_qs, u"/home/anna/Music/Calderin M4A/"_qs);
    initProgramIdentity();
    initTranslationResources();
    QMWidgets::TranslationsManager::instance();
    app.setStyleSheet(converterStyleSheet());
    app.setQuitOnLastWindowClosed(false);
    QDir().mkpath(arguments.at(1));
    const QString language = arguments.at(2);
    const QString slideLanguage
        = language == u"de"_qs || language == u"ru"_qs ? language : u"en"_qs;
    QStringList slides;
    for (int n = 1; n <= 8; ++n) {
        slides << QMWidgets::App::bundleResourcePath()
                + u"Slide%1_%2.jpg"_qs.arg(QString::number(n), slideLanguage);
    }
    QMWidgets::App::setIntroductionSlides(slides);
    const Photographer photographer(arguments.at(1), arguments.mid(3));
    takeMainPage(photographer);
    takeRun(photographer);
    takeSettings(photographer);
    takeDialogs(photographer);
    return 0;
}
