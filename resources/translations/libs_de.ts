<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> – Aktualisierung</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>Beim Start nach Updates suchen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Mediendateien werden gesucht.&lt;br&gt;Bitte warten …&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Videodateien: %1&lt;BR&gt;Audiodateien: %2&lt;BR&gt;Bilddateien: %3&lt;BR&gt;Textdateien: %4&lt;BR&gt;Andere Dateien: %5&lt;BR&gt;&lt;/H3&gt;</translation>
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
        <translation>Über das Programm</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Rechtliche Hinweise</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Rechtliche Hinweise</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Diese Anwendung verwendet:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Die neuere Version </translation>
    </message>
    <message>
        <source> of </source>
        <translation> von </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> ist verfügbar.&lt;br&gt;Neueste Version holen?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Sie verwenden die neueste Version.&lt;br&gt;Trotzdem zur Webseite der App gehen?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV – macht aus Audio- und Videodateien WAV-Dateien</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A – macht aus Audio- und Videodateien M4A-Dateien</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 – macht aus Audio- und Videodateien MP3-Dateien</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder – nimmt jeden Eingang des Rechners auf</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode – liest LTC-Timecode aus Audio und Video</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI – zeigt, spielt und bearbeitet MIDI-Dateien</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome – gibt den Takt in jeder Taktart vor</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar – Stimmgerät, Akkorde und Tonleitern für Gitarre</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass – Stimmgerät und Tonleitern für die Bassgitarre</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele – Stimmgerät und Akkorde für die Ukulele</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin – Stimmgerät und Akkorde für die Mandoline</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo – Stimmgerät und Akkorde für das Banjo</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika – Stimmgerät und Akkorde für die Balalaika</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano – Akkorde und Tonleitern auf der Klaviatur</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin – Stimmgerät und Fingersatz für die Geige</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer – blättert durch Bilderordner</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes – setzt Notizen und Pfeile auf Bilder</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper – schneidet Bilder aus dem Bildschirm aus</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer – misst Größen und Abstände auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette – reduziert und stimmt die Farben von Bildern ab</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation – macht aus Bildern Animationen</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP – überträgt Dateien zu Servern und zurück</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts – liest und schreibt Visitenkarten</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher – schützt Dateien mit einem Passwort</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style – schreibt Stylesheets und probiert sie aus</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer – verkleinert Skripte für das Web</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>App bewerten</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Support-Seite</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
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
        <translation>CSS-Stileditor</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Bearbeitung</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Info setzen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Fotos hier ablegen&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Klicken, um Fotos zu öffnen</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>Einführung &amp;immer überspringen</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>&amp;Videos ansehen</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Einführung</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>Folie %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>Folgen Sie uns und erfahren Sie&lt;br&gt;alles über unsere</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. Neuigkeiten</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. neuen Apps</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. App-Updates</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>und mehr …</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;Um uns zu folgen, klicken Sie bei %1 auf Facebook auf „Gefällt mir“.&lt;/H3&gt;Vielen Dank!</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Ja, alle</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>Nein, keine</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>Banner schließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Folgen Sie uns</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>App bewerten</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>App-Menü</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>„%1“ bewerten</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>Gefällt Ihnen „%1“?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>Bitte bewerten Sie die App im App Store.&lt;br&gt;So helfen Sie uns, die App&lt;br&gt;weiter zu verbessern.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Jetzt bewerten</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>Feedback zu „%1“</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>Bitte bewerten Sie die App im App Store oder schreiben Sie uns&lt;br&gt;kurz per E-Mail, was Ihnen nicht gefallen hat.&lt;br&gt;Ihre Meinung hilft uns, die App zu verbessern.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Bewerten</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>&amp;E-Mail schreiben</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Bewerten</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>E-&amp;Mail</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>&amp;Nicht mehr fragen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>Gesamtfortschritt</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>%1 teilen</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>Wenn Ihnen die App gefällt,&lt;br&gt;empfehlen Sie sie&lt;br&gt;Ihren Freunden.&lt;br&gt;Danke!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>Wenn Ihnen die App %1 gefällt,&lt;br&gt;empfehlen Sie sie Ihren Freunden.&lt;br&gt;Danke!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
</context>
</TS>
