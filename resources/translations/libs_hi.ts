<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> – अपडेट सूचना</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>शुरू होने पर अपडेट जाँचें</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>रद्द करें (&amp;C)</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;मीडिया फ़ाइलें खोजी जा रही हैं।&lt;br&gt;कृपया प्रतीक्षा करें…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;वीडियो फ़ाइलें: %1&lt;BR&gt;ऑडियो फ़ाइलें: %2&lt;BR&gt;चित्र फ़ाइलें: %3&lt;BR&gt;टेक्स्ट फ़ाइलें: %4&lt;BR&gt;अन्य फ़ाइलें: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> – जानकारी</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>प्रोग्राम के बारे में</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>कानूनी सूचनाएँ</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>ठीक है (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>कानूनी सूचनाएँ (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>वापस (&amp;B)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;इस ऐप्लिकेशन में प्रयुक्त:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>ऐप के बारे में</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;नए संस्करण </translation>
    </message>
    <message>
        <source> of </source>
        <translation> में </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> उपलब्ध है।&lt;br&gt;क्या आप नवीनतम संस्करण पाना चाहते हैं?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;आप नवीनतम संस्करण का उपयोग कर रहे हैं।&lt;br&gt;क्या फिर भी ऐप का वेब पेज खोलना है?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV – ऑडियो और वीडियो को WAV फ़ाइलों में बदलता है</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A – ऑडियो और वीडियो को M4A फ़ाइलों में बदलता है</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 – ऑडियो और वीडियो को MP3 फ़ाइलों में बदलता है</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder – कंप्यूटर का हर इनपुट रिकॉर्ड करता है</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode – ऑडियो और वीडियो से LTC टाइमकोड पढ़ता है</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI – MIDI फ़ाइलें दिखाता, बजाता, बदलता है</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome – हर ताल में लय बनाए रखता है</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar – गिटार के लिए ट्यूनर, कॉर्ड और स्केल</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass – बेस गिटार के लिए ट्यूनर और स्केल</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele – यूकुलेले के लिए ट्यूनर और कॉर्ड</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin – मैंडोलिन के लिए ट्यूनर और कॉर्ड</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo – बैंजो के लिए ट्यूनर और कॉर्ड</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika – बालालाइका के लिए ट्यूनर और कॉर्ड</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano – कीबोर्ड पर कॉर्ड और स्केल</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin – वायलिन के लिए ट्यूनर और फ़िंगरिंग</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer – चित्रों के फ़ोल्डर पलटकर दिखाता है</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes – चित्रों पर नोट और तीर लगाता है</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper – स्क्रीन से चित्र काटता है</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer – स्क्रीन पर आकार और दूरी मापता है</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette – चित्रों के रंग घटाता और सुधारता है</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation – चित्रों से ऐनिमेशन बनाता है</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP – सर्वर से फ़ाइलें लाता और भेजता है</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts – संपर्क कार्ड पढ़ता और लिखता है</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher – फ़ाइलों पर पासवर्ड लगाता है</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style – स्टाइल शीट लिखता और आज़माता है</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer – वेब की स्क्रिप्ट छोटी करता है</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>इस ऐप को रेट करें</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>परिचय</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>और ऐप</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>संपर्क करें</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>सहायता पेज</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>अपडेट जाँचें</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>गोपनीयता नीति</translation>
    </message>
    <message>
        <source>About</source>
        <translation>ऐप के बारे में</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>स्टाइल शीट</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS स्टाइल संपादक</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>तैयार</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>फ़ाइल (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>सहायता (&amp;H)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>प्रोसेसिंग</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>खोलें (&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>सहेजें (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>जानकारी सेट करें (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>लागू करें (&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>इस रूप में सहेजें (&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>परिचय (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>रीसेट करें (&amp;R)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>ऐप के बारे में</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;फ़ोटो यहाँ छोड़ें&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>फ़ोटो खोलने के लिए क्लिक करें</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>फ़ाइलें खोलें</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>फ़ोल्डर खोलें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>परिचय हमेशा छोड़ें (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>वीडियो देखें (&amp;W)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – परिचय</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>स्लाइड %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>हमें फ़ॉलो करें और इनकी&lt;br&gt;जानकारी पाते रहें</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. महत्वपूर्ण समाचार</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. नए ऐप</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. ऐप अपडेट</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>और भी बहुत कुछ…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>ईमेल</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>जानकारी</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;हमसे जुड़ने के लिए कृपया Facebook पर %1 को “लाइक” करें।&lt;/H3&gt;धन्यवाद!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>निरस्त करें</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>फिर कोशिश करें</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>अनदेखा करें</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>सभी को हाँ</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>सभी को नहीं</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>और</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>बैनर बंद करें</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>और</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>परिचय</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>हमसे जुड़ें</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>और ऐप</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>ऐप को रेट करें</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>ऐप मेन्यू</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>“%1” को रेट करें</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>क्या आपको “%1” पसंद है?</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>कृपया App Store पर इस ऐप को रेट करें।&lt;br&gt;इससे हमें आगे चलकर&lt;br&gt;ऐप को बेहतर बनाने में मदद मिलेगी।</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>अभी रेट करें (&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>“%1” के बारे में राय</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>कृपया App Store पर ऐप को रेट करें या हमें एक छोटा-सा ईमेल भेजकर&lt;br&gt;बताएँ कि आपको क्या पसंद नहीं आया।&lt;br&gt;आपकी राय से हमें ऐप को बेहतर बनाने में मदद मिलेगी।</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>रेट करें (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>ईमेल लिखें (&amp;W)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>रेट करें (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>ईमेल (&amp;M)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>बाद में (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>दोबारा न पूछें (&amp;D)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>कुल प्रगति</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>%1 साझा करें</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>अगर आपको ऐप पसंद है,&lt;br&gt;तो कृपया इसे अपने&lt;br&gt;दोस्तों के साथ साझा करें।&lt;br&gt;धन्यवाद!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>साझा करें</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>अगर आपको ऐप %1 पसंद है,&lt;br&gt;तो इसे अपने दोस्तों के साथ साझा करें।&lt;br&gt;धन्यवाद!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>बंद करें (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>ईमेल</translation>
    </message>
</context>
</TS>
