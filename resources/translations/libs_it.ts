<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> – Aggiornamenti</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>Cerca aggiornamenti all’avvio</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Ricerca dei file multimediali.&lt;br&gt;Attendere…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;File video: %1&lt;BR&gt;File audio: %2&lt;BR&gt;File immagine: %3&lt;BR&gt;File di testo: %4&lt;BR&gt;Altri file: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> – Informazioni</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>Informazioni sul programma</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Note legali</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>&amp;Note legali</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;Questa applicazione utilizza:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;La nuova versione </translation>
    </message>
    <message>
        <source> of </source>
        <translation> di </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> è disponibile.&lt;br&gt;Vuoi scaricare la versione più recente?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;Stai usando la versione più recente.&lt;br&gt;Aprire comunque la pagina web dell’applicazione?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV – converte file audio e video in file WAV</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A – converte file audio e video in file M4A</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 – converte file audio e video in file MP3</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder – registra ogni ingresso del computer</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode – legge il timecode LTC da audio e video</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI – mostra, suona e modifica file MIDI</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome – tiene il tempo in qualsiasi metro</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar – accordatore, accordi e scale per chitarra</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass – accordatore e scale per basso</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele – accordatore e accordi per ukulele</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin – accordatore e accordi per mandolino</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo – accordatore e accordi per banjo</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika – accordatore e accordi per balalaica</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano – accordi e scale sulla tastiera</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin – accordatore e diteggiature per violino</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer – sfoglia le cartelle di immagini</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes – aggiunge note e frecce alle immagini</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper – ritaglia immagini dallo schermo</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer – misura dimensioni e distanze sullo schermo</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette – riduce e regola i colori delle immagini</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation – crea animazioni dalle immagini</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP – trasferisce file da e verso i server</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts – legge e scrive biglietti da visita</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher – protegge i file con una password</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style – scrive e prova fogli di stile</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer – riduce le dimensioni degli script web</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>Valuta l’app</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>Introduzione</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Altre app</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contattaci</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>Foglio di stile</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>Editor di stile CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>Operazioni</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>&amp;Imposta informazioni</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;pplica</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>In&amp;formazioni</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;Trascina qui le foto&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>Fai clic per aprire le foto</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>&amp;Salta sempre l’introduzione</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>&amp;Guarda i video</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – Introduzione</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>Diapositiva %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>Seguici e resta informato&lt;br&gt;su</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. Notizie importanti</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. Nuove app</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. Aggiornamenti delle app</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>e altro ancora…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;Per seguirci, fai clic su “Mi piace” sulla pagina Facebook di %1.&lt;/H3&gt;Grazie!</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>No a tutti</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>Chiudi il banner</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Introduzione</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>Seguici</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>Altre app</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>Valuta l’app</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>Menu dell’app</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>Valuta “%1”</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>Ti piace “%1”?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>Valuta l’app sull’App Store.&lt;br&gt;Ci aiuterai così&lt;br&gt;a migliorarla in futuro.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>&amp;Valuta ora</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>Opinioni su “%1”</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>Valuta l’app sull’App Store o inviaci una breve e-mail&lt;br&gt;per dirci che cosa non ti è piaciuto.&lt;br&gt;La tua opinione ci aiuterà a migliorare l’app.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Valuta</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>&amp;Scrivi un’e-mail</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Valuta</translation>
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
        <translation>&amp;Più tardi</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>&amp;Non chiedere più</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>Avanzamento totale</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>Condividi %1</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>Se l’app ti piace,&lt;br&gt;condividila con&lt;br&gt;i tuoi amici.&lt;br&gt;Grazie!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>Se l’app %1 ti piace,&lt;br&gt;condividila con i tuoi amici.&lt;br&gt;Grazie!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
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
