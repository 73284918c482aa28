<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and more...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
