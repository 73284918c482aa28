// Which applications the catalogue menu shows in an application of each category.

#include "PromoMenuBar.h"

#include "Literals.h"

#include <QMenu>

namespace QMWidgets {

void PromoMenuBar::addAppItems(const QStringList &lstNames)
{
    for (const QString &str : lstNames) {
        addAppItem(u"calderin"_qs + str);
    }
}

void PromoMenuBar::setupAppsMenu(const QString &strCategory)
{
    m_pmenuMore->clear();
    const struct
    {
        QString strName;
        void (PromoMenuBar::*add)();
    } rows[] = {
        {u"graphics"_qs, &PromoMenuBar::addGraphicsMenuItems},
        {u"guitar"_qs, &PromoMenuBar::addGuitarMenuItems},
        {u"bass"_qs, &PromoMenuBar::addBassMenuItems},
        {u"ukulele"_qs, &PromoMenuBar::addUkuleleMenuItems},
        {u"mandolin"_qs, &PromoMenuBar::addMandolinMenuItems},
        {u"banjo"_qs, &PromoMenuBar::addBanjoMenuItems},
        {u"balalaika"_qs, &PromoMenuBar::addBalalaikaMenuItems},
        {u"piano"_qs, &PromoMenuBar::addPianoMenuItems},
        {u"violin"_qs, &PromoMenuBar::addViolinMenuItems},
        {u"photo"_qs, &PromoMenuBar::addPhotoMenuItems},
        {u"developer"_qs, &PromoMenuBar::addDeveloperMenuItems},
        {u"audio"_qs, &PromoMenuBar::addAudioMenuItems},
        {u"music"_qs, &PromoMenuBar::addMusicMenuItems},
    };
    for (const auto &row : rows) {
        if (row.strName == strCategory) {
            (this->*row.add)();
        }
    }
    m_pmenuMore->addSeparator();
    addMoreAppsLink();
}

void PromoMenuBar::addGraphicsMenuItems()
{
    addAppItems({u"palette"_qs, u"animation"_qs, u"viewer"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"notes"_qs, u"cropper"_qs, u"measurer"_qs});
}

void PromoMenuBar::addPhotoMenuItems()
{
    addAppItems({u"viewer"_qs, u"notes"_qs, u"palette"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"cropper"_qs, u"animation"_qs});
}

void PromoMenuBar::addDeveloperMenuItems()
{
    addAppItems({u"style"_qs, u"minimizer"_qs, u"measurer"_qs, u"cropper"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"ftp"_qs, u"cipher"_qs, u"contacts"_qs});
}

void PromoMenuBar::addAudioMenuItems()
{
    addAppItems({u"wav"_qs, u"m4a"_qs, u"mp3"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"recorder"_qs, u"timecode"_qs, u"midi"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"guitar"_qs, u"piano"_qs, u"metronome"_qs});
}

void PromoMenuBar::addMusicMenuItems()
{
    addMusicInstrumentMenuItems();
    m_pmenuMore->addSeparator();
    addAppItems({u"midi"_qs, u"recorder"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"wav"_qs, u"m4a"_qs, u"mp3"_qs});
}

void PromoMenuBar::addGuitarMenuItems()
{
    addAppItems({u"guitar"_qs, u"bass"_qs, u"ukulele"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addBassMenuItems()
{
    addAppItems({u"bass"_qs, u"guitar"_qs, u"piano"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addUkuleleMenuItems()
{
    addAppItems({u"ukulele"_qs, u"guitar"_qs, u"banjo"_qs, u"mandolin"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addMandolinMenuItems()
{
    addAppItems({u"mandolin"_qs, u"violin"_qs, u"banjo"_qs, u"guitar"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addBanjoMenuItems()
{
    addAppItems({u"banjo"_qs, u"mandolin"_qs, u"guitar"_qs, u"ukulele"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addBalalaikaMenuItems()
{
    addAppItems({u"balalaika"_qs, u"mandolin"_qs, u"guitar"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addPianoMenuItems()
{
    addAppItems({u"piano"_qs, u"guitar"_qs, u"violin"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addViolinMenuItems()
{
    addAppItems({u"violin"_qs, u"mandolin"_qs, u"piano"_qs});
    addInstrumentClosingItems();
}

void PromoMenuBar::addMusicInstrumentMenuItems()
{
    addAppItems({u"guitar"_qs, u"bass"_qs, u"ukulele"_qs, u"mandolin"_qs, u"banjo"_qs,
        u"balalaika"_qs, u"piano"_qs, u"violin"_qs});
    m_pmenuMore->addSeparator();
    addAppItems({u"metronome"_qs});
}

void PromoMenuBar::addInstrumentClosingItems()
{
    m_pmenuMore->addSeparator();
    addAppItems({u"metronome"_qs, u"midi"_qs, u"recorder"_qs});
}

} // namespace QMWidgets
