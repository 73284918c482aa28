<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>सब सहेजें</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>हाँ (&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>सभी को हाँ (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>नहीं (&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>सभी को नहीं (&amp;O)</translation>
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
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>छोड़ दें</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>सहायता</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>लागू करें</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>रीसेट करें</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>डिफ़ॉल्ट बहाल करें</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>विवरण दिखाएँ…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>विवरण छिपाएँ…</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>यहाँ देखें:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>फ़ाइल का नाम (&amp;N):</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>फ़ाइल प्रकार:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>फ़ोल्डर:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>खोलें (&amp;O)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>सहेजें (&amp;S)</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>इस रूप में सहेजें</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>चुनें (&amp;C)</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>फ़ोल्डर खोजें</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>पीछे जाएँ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>आगे जाएँ</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>ऊपर का फ़ोल्डर</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>ऊपर के फ़ोल्डर में जाएँ</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>एक नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>सूची दृश्य</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>सूची दृश्य में बदलें</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>विस्तृत दृश्य</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>विस्तृत दृश्य में बदलें</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>साइडबार</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>स्थानों और बुकमार्क की सूची</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>फ़ाइलें</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>हाल के स्थान</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>मेरा कंप्यूटर</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ड्राइव</translation>
    </message>
    <message>
        <source>File</source>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 फ़ाइल</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>फ़ाइल फ़ोल्डर</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>शॉर्टकट</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>अज्ञात</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>नाम बदलें (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>मिटाएँ (&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>छिपी फ़ाइलें दिखाएँ (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>नया फ़ोल्डर (&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>नया फ़ोल्डर</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” लेखन-सुरक्षित है।
क्या फिर भी इसे मिटाना है?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>क्या आप वाकई “%1” को मिटाना चाहते हैं?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>फ़ोल्डर मिटाया नहीं जा सका।</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 पहले से मौजूद है।
क्या आप इसे बदलना चाहते हैं?</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
फ़ोल्डर नहीं मिला।
कृपया जाँचें कि फ़ोल्डर का नाम सही है।</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
फ़ाइल नहीं मिली।
कृपया जाँचें कि फ़ाइल का नाम सही है।</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>संशोधन तिथि</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>मेरा कंप्यूटर</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>कंप्यूटर</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>अमान्य फ़ाइल नाम</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;“%1” नाम का उपयोग नहीं किया जा सकता।&lt;/b&gt;&lt;p&gt;कोई दूसरा नाम आज़माएँ, जिसमें कम अक्षर हों या विराम चिह्न न हों।</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सब चुनें</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>काटें (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>चिपकाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>सब चुनें</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>लिंक का पता कॉपी करें (&amp;L)</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>सब चुनें (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>बढ़ाएँ (&amp;U)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>घटाएँ (&amp;D)</translation>
    </message>
</context>
</TS>
