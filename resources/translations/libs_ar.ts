<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AppUpdateDialog</name>
    <message>
        <source> Updates Notification</source>
        <translation> – إشعار بالتحديثات</translation>
    </message>
    <message>
        <source>Check for updates on start</source>
        <translation>البحث عن تحديثات عند بدء التشغيل</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
</context>
<context>
    <name>QMMultiMedia::MediaSearchDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;Searching for the media files.&lt;br&gt;Please, wait...&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;جارٍ البحث عن ملفات الوسائط.&lt;br&gt;يرجى الانتظار…&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Video Files: %1&lt;BR&gt;Audio Files: %2&lt;BR&gt;Image Files: %3&lt;BR&gt;Text Files: %4&lt;BR&gt;Other Files: %5&lt;BR&gt;&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;ملفات الفيديو: %1&lt;BR&gt;ملفات الصوت: %2&lt;BR&gt;ملفات الصور: %3&lt;BR&gt;الملفات النصية: %4&lt;BR&gt;ملفات أخرى: %5&lt;BR&gt;&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source> Info</source>
        <translation> – معلومات</translation>
    </message>
    <message>
        <source>About the program</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>إشعارات قانونية</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>موافق (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>إشعارات قانونية (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>رجوع (&amp;B)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;يستخدم هذا التطبيق:&lt;/H3&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;الإصدار الأحدث </translation>
    </message>
    <message>
        <source> of </source>
        <translation> من </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Get the newest version?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation> متوفر الآن.&lt;br&gt;هل تريد الحصول على أحدث إصدار؟&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the app web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;أنت تستخدم أحدث إصدار متوفر.&lt;br&gt;هل تريد فتح صفحة التطبيق على الويب على أي حال؟&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppCatalog</name>
    <message>
        <source>Calderin WAV - turns audio and video files into WAV files</source>
        <translation>Calderin WAV – يحوّل ملفات الصوت والفيديو إلى ملفات WAV</translation>
    </message>
    <message>
        <source>Calderin M4A - turns audio and video files into M4A files</source>
        <translation>Calderin M4A – يحوّل ملفات الصوت والفيديو إلى ملفات M4A</translation>
    </message>
    <message>
        <source>Calderin MP3 - turns audio and video files into MP3 files</source>
        <translation>Calderin MP3 – يحوّل ملفات الصوت والفيديو إلى ملفات MP3</translation>
    </message>
    <message>
        <source>Calderin Recorder - records any input of the computer</source>
        <translation>Calderin Recorder – يسجّل أي مدخل في الحاسوب</translation>
    </message>
    <message>
        <source>Calderin Timecode - reads LTC timecode from audio and video</source>
        <translation>Calderin Timecode – يقرأ رمز الوقت LTC من الصوت والفيديو</translation>
    </message>
    <message>
        <source>Calderin MIDI - shows, plays and edits MIDI files</source>
        <translation>Calderin MIDI – يعرض ملفات MIDI ويشغّلها ويحرّرها</translation>
    </message>
    <message>
        <source>Calderin Metronome - keeps the beat in any time signature</source>
        <translation>Calderin Metronome – يضبط الإيقاع في أي ميزان موسيقي</translation>
    </message>
    <message>
        <source>Calderin Guitar - tuner, chords and scales for the guitar</source>
        <translation>Calderin Guitar – موالف وتآلفات وسلالم للغيتار</translation>
    </message>
    <message>
        <source>Calderin Bass - tuner and scales for the bass guitar</source>
        <translation>Calderin Bass – موالف وسلالم لغيتار الباص</translation>
    </message>
    <message>
        <source>Calderin Ukulele - tuner and chords for the ukulele</source>
        <translation>Calderin Ukulele – موالف وتآلفات لليوكوليلي</translation>
    </message>
    <message>
        <source>Calderin Mandolin - tuner and chords for the mandolin</source>
        <translation>Calderin Mandolin – موالف وتآلفات للماندولين</translation>
    </message>
    <message>
        <source>Calderin Banjo - tuner and chords for the banjo</source>
        <translation>Calderin Banjo – موالف وتآلفات للبانجو</translation>
    </message>
    <message>
        <source>Calderin Balalaika - tuner and chords for the balalaika</source>
        <translation>Calderin Balalaika – موالف وتآلفات للبالالايكا</translation>
    </message>
    <message>
        <source>Calderin Piano - chords and scales on the keyboard</source>
        <translation>Calderin Piano – تآلفات وسلالم على لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Calderin Violin - tuner and fingering for the violin</source>
        <translation>Calderin Violin – موالف ومواضع أصابع للكمان</translation>
    </message>
    <message>
        <source>Calderin Viewer - leafs through folders of pictures</source>
        <translation>Calderin Viewer – يتصفّح مجلدات الصور</translation>
    </message>
    <message>
        <source>Calderin Notes - puts notes and arrows on pictures</source>
        <translation>Calderin Notes – يضع ملاحظات وأسهمًا على الصور</translation>
    </message>
    <message>
        <source>Calderin Cropper - cuts pictures out of the screen</source>
        <translation>Calderin Cropper – يقصّ صورًا من الشاشة</translation>
    </message>
    <message>
        <source>Calderin Measurer - measures sizes and distances on the screen</source>
        <translation>Calderin Measurer – يقيس الأحجام والمسافات على الشاشة</translation>
    </message>
    <message>
        <source>Calderin Palette - reduces and tunes the colours of pictures</source>
        <translation>Calderin Palette – يقلّل ألوان الصور ويضبطها</translation>
    </message>
    <message>
        <source>Calderin Animation - makes animations of pictures</source>
        <translation>Calderin Animation – يصنع رسومًا متحركة من الصور</translation>
    </message>
    <message>
        <source>Calderin FTP - moves files to servers and back</source>
        <translation>Calderin FTP – ينقل الملفات من الخوادم وإليها</translation>
    </message>
    <message>
        <source>Calderin Contacts - reads and writes contact cards</source>
        <translation>Calderin Contacts – يقرأ بطاقات جهات الاتصال ويكتبها</translation>
    </message>
    <message>
        <source>Calderin Cipher - locks files with a password</source>
        <translation>Calderin Cipher – يحمي الملفات بكلمة مرور</translation>
    </message>
    <message>
        <source>Calderin Style - writes style sheets and tries them out</source>
        <translation>Calderin Style – يكتب أوراق الأنماط ويجرّبها</translation>
    </message>
    <message>
        <source>Calderin Minimizer - makes scripts for the web smaller</source>
        <translation>Calderin Minimizer – يصغّر حجم نصوص الويب البرمجية</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>تقييم هذا التطبيق</translation>
    </message>
    <message>
        <source>Intro</source>
        <translation>مقدمة</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>تابعنا</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>تطبيقات أخرى</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>اتصل بنا</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>صفحة الدعم</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>سياسة الخصوصية</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>ورقة الأنماط</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>محرر أنماط CSS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ملف (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>عمليات</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>فتح (&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>حفظ (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>تعيين المعلومات (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>تطبيق (&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>حفظ باسم (&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>حول (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>إعادة تعيين (&amp;R)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;أفلت الصور هنا&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>انقر لفتح الصور</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>فتح ملفات</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>فتح مجلد</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Always skip intro</source>
        <translation>تخطي المقدمة دائمًا (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Watch videos</source>
        <translation>مشاهدة مقاطع الفيديو (&amp;W)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> – مقدمة</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpViewArea</name>
    <message>
        <source>Slide %1</source>
        <translation>الشريحة %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>تابعنا</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>تابعنا</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Follow us and stay informed&lt;br&gt;about our</source>
        <translation>تابعنا وابقَ على اطّلاع&lt;br&gt;على</translation>
    </message>
    <message>
        <source>1. Important News</source>
        <translation>1. الأخبار المهمة</translation>
    </message>
    <message>
        <source>2. New APPs</source>
        <translation>2. التطبيقات الجديدة</translation>
    </message>
    <message>
        <source>3. APP Updates</source>
        <translation>3. تحديثات التطبيقات</translation>
    </message>
    <message>
        <source>and more...</source>
        <translation>والمزيد…</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>&lt;H3&gt;To join us, please &quot;Like&quot; %1 on Facebook.&lt;/H3&gt;Thank you!</source>
        <translation>&lt;H3&gt;لمتابعتنا، يُرجى النقر على «أعجبني» في صفحة %1 على Facebook.&lt;/H3&gt;شكرًا لك!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>إحباط</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>نعم للكل</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>لا للكل</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MoreAppsButton</name>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoAdsBar</name>
    <message>
        <source>Close the banner</source>
        <translation>إغلاق الإعلان</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>مقدمة</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>تابعنا</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>تطبيقات أخرى</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>تقييم التطبيق</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>قائمة التطبيق</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateAppStoreDialog</name>
    <message>
        <source>Rate &quot;%1&quot;</source>
        <translation>تقييم «%1»</translation>
    </message>
    <message>
        <source>Enjoying &quot;%1&quot; ?</source>
        <translation>هل أعجبك «%1»؟</translation>
    </message>
    <message>
        <source>Please rate the app on the App Store.&lt;br&gt;This will help us improve &lt;br&gt;the app&apos;s features in the future.</source>
        <translation>يُرجى تقييم التطبيق في App Store.&lt;br&gt;سيساعدنا ذلك على&lt;br&gt;تحسين ميزات التطبيق مستقبلًا.</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>تقييم الآن (&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateMailDialog</name>
    <message>
        <source>Feedback about &quot;%1&quot;</source>
        <translation>رأيك في «%1»</translation>
    </message>
    <message>
        <source>Please rate it on the app store or send us a quick e-mail&lt;br&gt;and tell us what you didn&apos;t enjoy. &lt;br&gt;Your feedback will help us improve this app.</source>
        <translation>يُرجى تقييم التطبيق في App Store أو إرسال رسالة قصيرة إلينا&lt;br&gt;لتخبرنا بما لم يعجبك.&lt;br&gt;سيساعدنا رأيك على تحسين التطبيق.</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>تقييم (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Write email</source>
        <translation>كتابة رسالة (&amp;W)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Rate</source>
        <translation>تقييم (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Mail</source>
        <translation>رسالة (&amp;M)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderStateDialog</name>
    <message>
        <source>&amp;Later</source>
        <translation>لاحقًا (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask me again</source>
        <translation>عدم السؤال مجددًا (&amp;D)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RoundProgress</name>
    <message>
        <source>Overall progress</source>
        <translation>التقدم الكلي</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share %1</source>
        <translation>مشاركة %1</translation>
    </message>
    <message>
        <source>If you like the app&lt;br&gt;please share it with&lt;br&gt;your friends.&lt;br&gt;Thanks!</source>
        <translation>إذا أعجبك التطبيق&lt;br&gt;فيُرجى مشاركته&lt;br&gt;مع أصدقائك.&lt;br&gt;شكرًا لك!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>If you like the app %1,&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>إذا أعجبك التطبيق %1&lt;br&gt;فشاركه مع أصدقائك.&lt;br&gt;شكرًا لك!</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellWidget</name>
    <message>
        <source>E-mail</source>
        <translation>البريد الإلكتروني</translation>
    </message>
</context>
</TS>
