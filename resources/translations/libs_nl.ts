<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> – Updates</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>Bij het starten naar updates zoeken</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Er wordt naar mediabestanden gezocht.&lt;br&gt;Even geduld…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Videobestanden: %1&lt;BR&gt;Audiobestanden: %2&lt;BR&gt;Afbeeldingen: %3&lt;BR&gt;Tekstbestanden: %4&lt;BR&gt;Andere bestanden: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> – Info</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>Over het programma</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Juridische informatie</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Juridische informatie</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Terug</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Dit programma gebruikt:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;De nieuwere versie </translation>
    </message>
    <message>
        <source> of </source>
        <translation> van </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> is beschikbaar.&lt;br&gt;Wilt u de nieuwste versie ophalen?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;U gebruikt de nieuwste versie.&lt;br&gt;Wilt u toch naar de webpagina van de app gaan?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV – zet audio en video om naar WAV-bestanden</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A – zet audio en video om naar M4A-bestanden</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 – zet audio en video om naar MP3-bestanden</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder – neemt elke ingang van de computer op</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode – leest LTC-tijdcode uit audio en video</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI – toont, speelt en bewerkt MIDI-bestanden</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome – geeft de maat aan in elke maatsoort</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar – stemmer, akkoorden en toonladders voor gitaar</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass – stemmer en toonladders voor basgitaar</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele – stemmer en akkoorden voor ukelele</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin – stemmer en akkoorden voor mandoline</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo – stemmer en akkoorden voor banjo</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika – stemmer en akkoorden voor balalaika</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano – akkoorden en toonladders op het klavier</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin – stemmer en vingerzetting voor viool</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer – bladert door mappen met afbeeldingen</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes – zet notities en pijlen op afbeeldingen</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper – knipt afbeeldingen uit het scherm</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer – meet maten en afstanden op het scherm</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette – beperkt en verfijnt de kleuren van afbeeldingen</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation – maakt animaties van afbeeldingen</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP – wisselt bestanden uit met servers</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts – leest en schrijft visitekaartjes</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher – vergrendelt bestanden met wachtwoord</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style – schrijft stylesheets en probeert ze uit</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer – maakt scripts voor het web kleiner</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>App beoordelen</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Introductie</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Volg ons</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Meer apps</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Ondersteuning</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Naar updates zoeken</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Privacybeleid</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS-stijleditor</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Bewerkingen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Openen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Info instellen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Toepassen</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Opslaan &amp;als…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>O&amp;ver</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Zet de foto’s hier neer&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Klik om de foto’s te openen</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Bestanden openen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>Introductie &amp;altijd overslaan</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>&amp;Video’s bekijken</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Introductie</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>Dia %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Volg ons</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Volg ons</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>Volg ons en blijf op de hoogte&lt;br&gt;van onze</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. Belangrijke berichten</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. Nieuwe apps</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. App-updates</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>en meer…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;Wilt u ons volgen? Klik dan bij %1 op Facebook op ‘Vind ik leuk’.&lt;/H3&gt;Bedankt!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Afbreken</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Ja op alles</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Nee op alles</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>Banner sluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Introductie</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Volg ons</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Meer apps</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>App beoordelen</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>App-menu</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>‘%1’ beoordelen</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>Bevalt ‘%1’ u?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>Beoordeel de app in de App Store.&lt;br&gt;Zo helpt u ons de app&lt;br&gt;verder te verbeteren.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Nu beoordelen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>Feedback over ‘%1’</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>Beoordeel de app in de App Store of stuur ons een korte e-mail&lt;br&gt;en vertel ons wat u niet beviel.&lt;br&gt;Uw feedback helpt ons de app te verbeteren.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Beoordelen</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>&amp;E-mail schrijven</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Beoordelen</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>&amp;E-mail</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>Niet meer &amp;vragen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>Totale voortgang</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>%1 delen</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>Bevalt de app u?&lt;br&gt;Deel hem dan&lt;br&gt;met uw vrienden.&lt;br&gt;Bedankt!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>Bevalt de app %1 u?&lt;br&gt;Deel hem dan met uw vrienden.&lt;br&gt;Bedankt!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sluiten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
</context>
</TS>
