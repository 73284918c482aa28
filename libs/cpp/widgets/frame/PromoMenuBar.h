#pragma once

#include <QFrame>

class QAction;
class QHBoxLayout;
class QMenu;
class QPixmap;
class QPushButton;
class QSignalMapper;

namespace QMWidgets {

class AppButton;

/// The strip of flat buttons at the top of the main page: the catalogue of related applications at
/// the left, the application's own menu at the right, the page's own controls between them.
class PromoMenuBar : public QFrame
{
    Q_OBJECT

public:
    /// bQuitSignal: the menu's Quit raises quitApp(); else it calls QCoreApplication::quit().
    explicit PromoMenuBar(QWidget *parent = nullptr, bool bQuitSignal = false);

    /// Fills the catalogue menu with the applications of a category: "graphics", "guitar", "bass",
    /// "ukulele", "mandolin", "banjo", "balalaika", "piano", "violin", "photo", "developer",
    /// "audio" or "music". An unknown one leaves the closing entries only.
    void setupAppsMenu(const QString &strCategory);

    /// Adds the catalogue's entry of that key; an unknown key and the application's own add
    /// nothing.
    void addAppItem(const QString &strKey);

    /// Adds an entry that opens strLink by way of the application's store address; nothing is added
    /// when there is no such address.
    void addMenuLink(const QPixmap &pixmap, const QString &strText, const QString &strLink);

    /// Adds an entry for the store page of the product strName with the identifier strId ("id" and
    /// digits).
    void addMenuAppLink(const QPixmap &pixmap, const QString &strText, const QString &strName,
        const QString &strId);

    /// Adds the entry "More Apps" between two separators.
    void addMoreAppsLink();

    /// Adds a control of the page between the two ends of the strip; the strip takes ownership.
    void addCenterWidget(QWidget *pwgt);

    /// The catalogue menu's actions, separators among them.
    QList<QAction *> moreActions() const;

    void hideIntroButton();
    void hideRateButton();
    void hideMoreAppsButton();
    void hideShareButton();
    void hideJoinButton();
    void hideMoreAction();

    void hideIntroAction();
    void hideRateAction();
    void hideMoreAppsAction();
    void hideShareAction();
    void hideJoinAction();
    void hideSupportPageAction();

signals:
    void quitApp();

public slots:
    /// Opens an address with the desktop's program for it.
    void slotCallUrl(const QString &strUrl);

private:
    void createButtons(bool bQuitSignal);
    void createLayout();
    void connectButtons();
    QPushButton *createButton(const QString &strName, const QString &strToolTip);
    static void prepareButton(QPushButton *pcmd, const QString &strName, const QString &strToolTip);

    /// lstNames: keys without the family's name in front.
    void addAppItems(const QStringList &lstNames);
    void addGraphicsMenuItems();
    void addPhotoMenuItems();
    void addDeveloperMenuItems();
    void addAudioMenuItems();
    void addMusicMenuItems();
    void addGuitarMenuItems();
    void addBassMenuItems();
    void addUkuleleMenuItems();
    void addMandolinMenuItems();
    void addBanjoMenuItems();
    void addBalalaikaMenuItems();
    void addPianoMenuItems();
    void addViolinMenuItems();
    void addMusicInstrumentMenuItems();
    void addInstrumentClosingItems();

    QPushButton *m_pcmdIntro = nullptr;
    QPushButton *m_pcmdRate = nullptr;
    QPushButton *m_pcmdMoreApps = nullptr;
    QPushButton *m_pcmdMore = nullptr;
    QPushButton *m_pcmdShare = nullptr;
    QPushButton *m_pcmdJoin = nullptr;
    AppButton *m_pcmdApp = nullptr;
    QMenu *m_pmenuMore = nullptr;
    QSignalMapper *m_pmapper = nullptr;
    QHBoxLayout *m_playoutCenter = nullptr;
    QHBoxLayout *m_playoutRight = nullptr;
};

} // namespace QMWidgets
