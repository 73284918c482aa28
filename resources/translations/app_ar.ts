<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation>320 كيلوبت/ث</translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation>256 كيلوبت/ث</translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation>224 كيلوبت/ث</translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation>192 كيلوبت/ث</translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation>160 كيلوبت/ث</translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation>128 كيلوبت/ث</translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation>112 كيلوبت/ث</translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation>96 كيلوبت/ث</translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation>80 كيلوبت/ث</translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation>64 كيلوبت/ث</translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation>56 كيلوبت/ث</translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation>48 كيلوبت/ث</translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation>40 كيلوبت/ث</translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation>32 كيلوبت/ث</translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation>24 كيلوبت/ث</translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation>16 كيلوبت/ث</translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – الإعدادات</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (أحادي)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (ستيريو)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالية</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسطة</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>منخفضة</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>معدل البت</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>بت لكل عيّنة:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>القنوات:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>الجودة:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>نسخ البيانات الوصفية (ID3) من المصدر</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>نسخ ملفات الصور من المصدر</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>نسخ الملفات النصية من المصدر</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>نسخ كل المحتوى غير المحوَّل من المصدر</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>الحفاظ على بنية مجلدات المصدر</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>قص الصمت من البداية والنهاية</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>تشغيل صوت تنبيه</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>فتح مجلد الوجهة</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>عمليات</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>يفتح مجلد الوجهة في مدير الملفات</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>معدل أخذ العينات:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>إعدادات المصدر والوجهة</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>بعد التحويل</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>إعدادات WAV</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>إعدادات M4A</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>إعدادات MP3</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>إعدادات غير معروفة</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>تسوية مستوى الصوت (%)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>المستوى بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>الظهور والتلاشي التدريجي (بالثواني)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – معالجة مجمّعة</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>حدث خطأ واحد أو أكثر!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>جارٍ التحليل</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>لا توجد مساحة كافية</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>لا توجد مساحة كافية</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;لا توجد مساحة كافية&lt;/H3&gt;التحويل متوقف مؤقتًا.&lt;br&gt;أفرغ بعض المساحة ثم انقر «استئناف».&lt;br&gt;لإنهاء التحويل انقر «إيقاف».</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>جارٍ نسخ ملفات الصور</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>جارٍ نسخ الملفات النصية</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>جارٍ نسخ المحتوى غير المحوَّل</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>جارٍ التحليل</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>يتعذّر التحويل لأن المدة طويلة جدًا. يُرجى خفض معدل أخذ العينات والمحاولة مجددًا: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>يتعذّر التحويل: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>أدنى         أقصى</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>سجل الأخطاء</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>أخطاء التحويل</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>موافق (&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>مدة الظهور التدريجي</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>مدة التلاشي التدريجي</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>إطالة الظهور التدريجي</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>إطالة التلاشي التدريجي</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>تقصير الظهور التدريجي</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>تقصير التلاشي التدريجي</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>خطأ في الإعدادات، يتعذّر إنشاء: </translation>
    </message>
    <message>
        <source>
</source>
        <translation>
</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Click to open the folder with audio/video files</source>
        <translation>انقر لفتح مجلد ملفات الصوت/الفيديو</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;أفلت ملفات الصوت/الفيديو&lt;br&gt;والمجلدات هنا&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>تغيير مجلد الوجهة…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة تعيين</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>مجلد الوجهة</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>يفتح مجلد الوجهة في مدير الملفات</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>فتح مجلد الوجهة</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>الوجهة:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>المقاطع الصوتية</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>تحويل</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>تعيين مجلد الوجهة</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>تم تخطي ملفات ذات أسماء غير مقروءة: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>يتعذّر الوصول إلى مجلد الوجهة.
يُرجى التحقق من الوجهة.</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>في انتظار انتهاء التحويل السابق</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>موضع التشغيل</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>إزالة من القائمة</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>ملفات الوسائط: %1</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>ملفات الوسائط: %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>جارٍ استكمال البيانات الوصفية للملفات المحوَّلة…</translation>
    </message>
</context>
</TS>
