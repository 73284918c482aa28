<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>320 kbps</source>
        <translation>320 kbps</translation>
    </message>
    <message>
        <source>256 kbps</source>
        <translation>256 kbps</translation>
    </message>
    <message>
        <source>224 kbps</source>
        <translation>224 kbps</translation>
    </message>
    <message>
        <source>192 kbps</source>
        <translation>192 kbps</translation>
    </message>
    <message>
        <source>160 kbps</source>
        <translation>160 kbps</translation>
    </message>
    <message>
        <source>128 kbps</source>
        <translation>128 kbps</translation>
    </message>
    <message>
        <source>112 kbps</source>
        <translation>112 kbps</translation>
    </message>
    <message>
        <source>96 kbps</source>
        <translation>96 kbps</translation>
    </message>
    <message>
        <source>80 kbps</source>
        <translation>80 kbps</translation>
    </message>
    <message>
        <source>64 kbps</source>
        <translation>64 kbps</translation>
    </message>
    <message>
        <source>56 kbps</source>
        <translation>56 kbps</translation>
    </message>
    <message>
        <source>48 kbps</source>
        <translation>48 kbps</translation>
    </message>
    <message>
        <source>40 kbps</source>
        <translation>40 kbps</translation>
    </message>
    <message>
        <source>32 kbps</source>
        <translation>32 kbps</translation>
    </message>
    <message>
        <source>24 kbps</source>
        <translation>24 kbps</translation>
    </message>
    <message>
        <source>16 kbps</source>
        <translation>16 kbps</translation>
    </message>
    <message>
        <source> Settings</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – सेटिंग</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>1 (Mono)</source>
        <translation>1 (मोनो)</translation>
    </message>
    <message>
        <source>2 (Stereo)</source>
        <translation>2 (स्टीरियो)</translation>
    </message>
    <message>
        <source>High</source>
        <translation>उच्च</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>मध्यम</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>निम्न</translation>
    </message>
    <message>
        <source>BitRate</source>
        <translation>बिट रेट</translation>
    </message>
    <message>
        <source>Bits per Sample:</source>
        <translation>बिट प्रति सैंपल:</translation>
    </message>
    <message>
        <source>Channels:</source>
        <translation>चैनल:</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>गुणवत्ता:</translation>
    </message>
    <message>
        <source>Copy meta tags (id3) from source</source>
        <translation>स्रोत के मेटा टैग (ID3) कॉपी करें</translation>
    </message>
    <message>
        <source>Copy image files from source</source>
        <translation>स्रोत की चित्र फ़ाइलें कॉपी करें</translation>
    </message>
    <message>
        <source>Copy text files from source</source>
        <translation>स्रोत की टेक्स्ट फ़ाइलें कॉपी करें</translation>
    </message>
    <message>
        <source>Copy entire non-converted content from source</source>
        <translation>स्रोत की बाकी सारी सामग्री भी कॉपी करें</translation>
    </message>
    <message>
        <source>Preserve folder structure of the source</source>
        <translation>स्रोत की फ़ोल्डर संरचना बनाए रखें</translation>
    </message>
    <message>
        <source>Trim silence from start and end</source>
        <translation>शुरुआत और अंत की ख़ामोशी हटाएँ</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>ध्वनि बजाएँ</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>गंतव्य फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>सूची खाली करें</translation>
    </message>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>प्रोसेसिंग</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>गंतव्य फ़ोल्डर को फ़ाइल प्रबंधक में खोलता है</translation>
    </message>
    <message>
        <source>Sample Rate:</source>
        <translation>सैंपल रेट:</translation>
    </message>
    <message>
        <source>Source / Destination Settings</source>
        <translation>स्रोत और गंतव्य की सेटिंग</translation>
    </message>
    <message>
        <source>After Conversion</source>
        <translation>रूपांतरण के बाद</translation>
    </message>
    <message>
        <source>WAV Settings</source>
        <translation>WAV सेटिंग</translation>
    </message>
    <message>
        <source>M4A Settings</source>
        <translation>M4A सेटिंग</translation>
    </message>
    <message>
        <source>MP3 Settings</source>
        <translation>MP3 सेटिंग</translation>
    </message>
    <message>
        <source>Unknown Settings</source>
        <translation>अज्ञात सेटिंग</translation>
    </message>
    <message>
        <source>Volume level normalization (in %)</source>
        <translation>वॉल्यूम नॉर्मलाइज़ेशन (% में)</translation>
    </message>
    <message>
        <source>Level in percent</source>
        <translation>स्तर, प्रतिशत में</translation>
    </message>
    <message>
        <source>Fade In &amp;&amp; Out (in seconds)</source>
        <extracomment>The ampersand is doubled to be shown.</extracomment>
        <translation>फ़ेड-इन और फ़ेड-आउट (सेकंड में)</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source> Batch Process</source>
        <extracomment>Follows the name of the application in the title of the window; keep the leading blank.</extracomment>
        <translation> – बैच प्रोसेसिंग</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>विराम</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>One or more errors have occured!</source>
        <translation>एक या अधिक त्रुटियाँ हुई हैं!</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>फिर शुरू करें</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>विश्लेषण हो रहा है</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>पूर्ण</translation>
    </message>
    <message>
        <source>NOT ENOUGH FREE SPACE</source>
        <translation>पर्याप्त खाली स्थान नहीं</translation>
    </message>
    <message>
        <source>Not enough free space</source>
        <translation>पर्याप्त खाली स्थान नहीं है</translation>
    </message>
    <message>
        <source>&lt;H3&gt;Not enough free space&lt;/H3&gt;Conversion paused.&lt;br&gt;Free up space and click &quot;Resume&quot;.&lt;br&gt;To stop conversion, click &quot;Stop&quot;.</source>
        <translation>&lt;H3&gt;पर्याप्त खाली स्थान नहीं है&lt;/H3&gt;रूपांतरण रुका हुआ है।&lt;br&gt;स्थान खाली करें और “फिर शुरू करें” पर क्लिक करें।&lt;br&gt;रूपांतरण समाप्त करने के लिए “रोकें” पर क्लिक करें।</translation>
    </message>
</context>
<context>
    <name>BatchWorker</name>
    <message>
        <source>COPYING IMAGE FILES</source>
        <translation>चित्र फ़ाइलें कॉपी हो रही हैं</translation>
    </message>
    <message>
        <source>COPYING TEXT FILES</source>
        <translation>टेक्स्ट फ़ाइलें कॉपी हो रही हैं</translation>
    </message>
    <message>
        <source>COPYING NON-CONVERTED CONTENT</source>
        <translation>बाकी सामग्री कॉपी हो रही है</translation>
    </message>
    <message>
        <source>ANALYZING</source>
        <translation>विश्लेषण हो रहा है</translation>
    </message>
    <message>
        <source>Can not convert, because the duration is to long. Please reduce the conversion sample rate and try again: </source>
        <translation>अवधि बहुत लंबी होने के कारण रूपांतरण नहीं हो सकता। कृपया सैंपल रेट घटाकर फिर कोशिश करें: </translation>
    </message>
    <message>
        <source>Can not convert: </source>
        <translation>रूपांतरण नहीं हो सकता: </translation>
    </message>
</context>
<context>
    <name>DecoratedDial</name>
    <message>
        <source>min         max</source>
        <extracomment>Below the two ends of the dial; keep the distance between the words.</extracomment>
        <translation>न्यून         अधिक</translation>
    </message>
</context>
<context>
    <name>ErrorsDialog</name>
    <message>
        <source>ERRORS LOG</source>
        <translation>त्रुटि लॉग</translation>
    </message>
    <message>
        <source>Errors of the conversion</source>
        <translation>रूपांतरण की त्रुटियाँ</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>ठीक है (&amp;O)</translation>
    </message>
</context>
<context>
    <name>FadeWidget</name>
    <message>
        <source>Length of the fade-in</source>
        <translation>फ़ेड-इन की लंबाई</translation>
    </message>
    <message>
        <source>Length of the fade-out</source>
        <translation>फ़ेड-आउट की लंबाई</translation>
    </message>
    <message>
        <source>Longer fade-in</source>
        <translation>फ़ेड-इन बढ़ाएँ</translation>
    </message>
    <message>
        <source>Longer fade-out</source>
        <translation>फ़ेड-आउट बढ़ाएँ</translation>
    </message>
    <message>
        <source>Shorter fade-in</source>
        <translation>फ़ेड-इन घटाएँ</translation>
    </message>
    <message>
        <source>Shorter fade-out</source>
        <translation>फ़ेड-आउट घटाएँ</translation>
    </message>
</context>
<context>
    <name>GeneralOutput</name>
    <message>
        <source>Settings error, can not create: </source>
        <translation>सेटिंग में त्रुटि, नहीं बनाया जा सका: </translation>
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
        <translation>ऑडियो/वीडियो फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>&lt;H2&gt;&lt;center&gt;Drop the audio/video files&lt;br&gt;and folders here&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;center&gt;ऑडियो/वीडियो फ़ाइलें&lt;br&gt;और फ़ोल्डर यहाँ छोड़ें&lt;br&gt;&lt;bold&gt;+&lt;/bold&gt;&lt;/center&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Change destination folder...</source>
        <translation>गंतव्य फ़ोल्डर बदलें…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>रीसेट करें</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>गंतव्य फ़ोल्डर</translation>
    </message>
    <message>
        <source>Opens the destination folder in finder</source>
        <translation>गंतव्य फ़ोल्डर को फ़ाइल प्रबंधक में खोलता है</translation>
    </message>
    <message>
        <source>Open the destination folder</source>
        <translation>गंतव्य फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>गंतव्य:</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>ट्रैक</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>रूपांतरित करें</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Set destination folder</source>
        <translation>गंतव्य फ़ोल्डर चुनें</translation>
    </message>
    <message>
        <source>Files with unreadable names were left out: %1</source>
        <translation>जिन फ़ाइलों के नाम पढ़े नहीं जा सके, वे छोड़ दी गईं: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>त्रुटि</translation>
    </message>
    <message>
        <source>Can not access the destination folder.
Please verify the destination.</source>
        <translation>गंतव्य फ़ोल्डर तक पहुँचा नहीं जा सका।
कृपया गंतव्य जाँचें।</translation>
    </message>
    <message>
        <source>WAITING FOR THE PREVIOUS CONVERSION</source>
        <translation>पिछले रूपांतरण के पूरा होने की प्रतीक्षा है</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>प्लेबैक स्थिति</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>चलाएँ</translation>
    </message>
    <message>
        <source>Remove from list</source>
        <translation>सूची से हटाएँ</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>चलाएँ या विराम दें</translation>
    </message>
    <message>
        <source>%1 media file</source>
        <translation>%1 मीडिया फ़ाइल</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 मीडिया फ़ाइलें</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Finishing the tags of the converted files…</source>
        <translation>रूपांतरित फ़ाइलों के टैग पूरे किए जा रहे हैं…</translation>
    </message>
</context>
</TS>
