<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About zkauthor</source>
        <translation>حول zkauthor</translation>
    </message>
    <message>
        <source>zkauthor %1</source>
        <translation>zkauthor %1</translation>
    </message>
    <message>
        <source>Shows and edits interactive teaching models: scenes with parts, their connections and properties.</source>
        <translation>يعرض النماذج التعليمية التفاعلية ويحررها: مشاهد فيها قطع ووصلاتها وخصائصها.</translation>
    </message>
    <message>
        <source>Folder of your own parts</source>
        <translation>مجلد قطعك الخاصة</translation>
    </message>
    <message>
        <source>How things are done</source>
        <translation>كيفية القيام بالأمور</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;جديد</translation>
    </message>
    <message>
        <source>Start an empty document</source>
        <translation>بدء مستند فارغ</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;فتح...</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>فتح مستند</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>حفظ المستند</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>حفظ &amp;باسم...</translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation>حفظ المستند باسم آخر</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>ا&amp;سترجاع</translation>
    </message>
    <message>
        <source>Go back to what was last saved</source>
        <translation>العودة إلى آخر ما حُفظ</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation>إغلاق المستند</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>إغلاق البرنامج</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>التراجع عن آخر تغيير</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>Do again what was taken back</source>
        <translation>إعادة ما تم التراجع عنه</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>Move the selected parts to the clipboard</source>
        <translation>نقل القطع المحددة إلى الحافظة</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy the selected parts to the clipboard</source>
        <translation>نسخ القطع المحددة إلى الحافظة</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>Add the parts on the clipboard</source>
        <translation>إضافة القطع الموجودة في الحافظة</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>م&amp;ضاعفة</translation>
    </message>
    <message>
        <source>Add copies of the selected parts</source>
        <translation>إضافة نسخ من القطع المحددة</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Delete the selected parts</source>
        <translation>حذف القطع المحددة</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد ال&amp;كل</translation>
    </message>
    <message>
        <source>Select every part of the scene</source>
        <translation>تحديد كل قطع المشهد</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt</source>
        <translation>تحديد الت&amp;الي</translation>
    </message>
    <message>
        <source>Select the next part</source>
        <translation>تحديد القطعة التالية</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious</source>
        <translation>تحديد ال&amp;سابق</translation>
    </message>
    <message>
        <source>Select the part before</source>
        <translation>تحديد القطعة السابقة</translation>
    </message>
    <message>
        <source>Rotate Le&amp;ft</source>
        <translation>تدوير إلى اليسا&amp;ر</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the left</source>
        <translation>تدوير القطع المحددة ربع دورة إلى اليسار</translation>
    </message>
    <message>
        <source>R&amp;otate Right</source>
        <translation>تدوير إلى الي&amp;مين</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the right</source>
        <translation>تدوير القطع المحددة ربع دورة إلى اليمين</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Show things larger</source>
        <translation>عرض الأشياء أكبر</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>Show things smaller</source>
        <translation>عرض الأشياء أصغر</translation>
    </message>
    <message>
        <source>&amp;Real Size</source>
        <translation>الحجم ال&amp;حقيقي</translation>
    </message>
    <message>
        <source>Show things in their real size</source>
        <translation>عرض الأشياء بحجمها الحقيقي</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;ملاءمة</translation>
    </message>
    <message>
        <source>Show the whole scene</source>
        <translation>عرض المشهد كله</translation>
    </message>
    <message>
        <source>Open Pop-&amp;up</source>
        <translation>فتح النافذة المن&amp;بثقة</translation>
    </message>
    <message>
        <source>Show the pop-up of the selected part</source>
        <translation>عرض النافذة المنبثقة للقطعة المحددة</translation>
    </message>
    <message>
        <source>New &amp;Scene</source>
        <translation>مشهد &amp;جديد</translation>
    </message>
    <message>
        <source>Add an empty scene</source>
        <translation>إضافة مشهد فارغ</translation>
    </message>
    <message>
        <source>Delete S&amp;cene</source>
        <translation>ح&amp;ذف المشهد</translation>
    </message>
    <message>
        <source>Delete the scene on view</source>
        <translation>حذف المشهد المعروض</translation>
    </message>
    <message>
        <source>Pa&amp;ge Setup...</source>
        <translation>إ&amp;عداد الصفحة...</translation>
    </message>
    <message>
        <source>Paper, margins and scale</source>
        <translation>الورق والهوامش والمقياس</translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation>معا&amp;ينة الطباعة...</translation>
    </message>
    <message>
        <source>Show the pages as they are printed</source>
        <translation>عرض الصفحات كما ستُطبع</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;طباعة...</translation>
    </message>
    <message>
        <source>Print the document</source>
        <translation>طباعة المستند</translation>
    </message>
    <message>
        <source>Export to P&amp;DF...</source>
        <translation>ت&amp;صدير إلى PDF...</translation>
    </message>
    <message>
        <source>Write the pages into a PDF file</source>
        <translation>كتابة الصفحات في ملف PDF</translation>
    </message>
    <message>
        <source>E&amp;xport to SVG...</source>
        <translation>تصدي&amp;ر إلى SVG...</translation>
    </message>
    <message>
        <source>Write the scene on view as a drawing</source>
        <translation>كتابة المشهد المعروض كرسم</translation>
    </message>
    <message>
        <source>&amp;Save as Custom Part...</source>
        <translation>حف&amp;ظ كقطعة خاصة...</translation>
    </message>
    <message>
        <source>Offer the selected part among the parts from now on</source>
        <translation>عرض القطعة المحددة بين القطع من الآن فصاعدًا</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>الت&amp;فضيلات...</translation>
    </message>
    <message>
        <source>How the program works for you</source>
        <translation>كيف يعمل البرنامج من أجلك</translation>
    </message>
    <message>
        <source>&amp;Licence...</source>
        <translation>الت&amp;رخيص...</translation>
    </message>
    <message>
        <source>Show or enter the licence</source>
        <translation>عرض الترخيص أو إدخاله</translation>
    </message>
    <message>
        <source>&amp;About zkauthor</source>
        <translation>&amp;حول zkauthor</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>ما هو هذا البرنامج</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>الملفات الأ&amp;خيرة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إ&amp;دراج</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>ت&amp;شغيل</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Badge</source>
        <translation>الشارة</translation>
    </message>
    <message>
        <source>C&amp;lose Pop-up</source>
        <translation>إ&amp;غلاق النافذة المنبثقة</translation>
    </message>
    <message>
        <source>Close the pop-up on view</source>
        <translation>إغلاق النافذة المنبثقة المعروضة</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;المحتويات</translation>
    </message>
    <message>
        <source>Read how things are done</source>
        <translation>قراءة كيفية القيام بالأمور</translation>
    </message>
</context>
<context>
    <name>AddCustomPartDialog</name>
    <message>
        <source>Add custom part</source>
        <translation>إضافة قطعة خاصة</translation>
    </message>
    <message>
        <source>Part &amp;name:</source>
        <translation>ا&amp;سم القطعة:</translation>
    </message>
    <message>
        <source>The part name must be unique and can contain no spaces.</source>
        <translation>يجب أن يكون اسم القطعة فريدًا وألا يحتوي على مسافات.</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;عنوان القطعة:</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>يظهر عنوان القطعة في شجرة القطع.</translation>
    </message>
    <message>
        <source>Part &amp;group:</source>
        <translation>&amp;مجموعة القطعة:</translation>
    </message>
    <message>
        <source>The part group defines part tree folder the part appears in.</source>
        <translation>تحدد مجموعة القطعة المجلد الذي تظهر فيه في شجرة القطع.</translation>
    </message>
    <message>
        <source>Part &amp;level:</source>
        <translation>مس&amp;توى القطعة:</translation>
    </message>
    <message>
        <source>This define&apos;s the part&apos;s educational level, e.g. keystate.</source>
        <translation>يحدد المستوى التعليمي للقطعة، مثل الصف.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
    <message>
        <source>The part id %1 is already in use.
Please enter another id</source>
        <translation>المعرّف %1 مستخدم بالفعل.
يرجى إدخال معرّف آخر</translation>
    </message>
</context>
<context>
    <name>AddNodesCommand</name>
    <message numerus="yes">
        <source>Adding of %n object(s)</source>
        <translation>
            <numerusform>لا إضافة (%n)</numerusform>
            <numerusform>إضافة كائن واحد (%n)</numerusform>
            <numerusform>إضافة كائنين (%n)</numerusform>
            <numerusform>إضافة %n كائنات</numerusform>
            <numerusform>إضافة %n كائنًا</numerusform>
            <numerusform>إضافة %n كائن</numerusform>
        </translation>
    </message>
    <message>
        <source>The place to add to is not there any more.</source>
        <translation>لم يعد المكان المطلوب الإضافة إليه موجودًا.</translation>
    </message>
    <message>
        <source>An object of the class &quot;%1&quot; cannot stand there.</source>
        <translation>لا يمكن لكائن من الصنف &quot;%1&quot; أن يكون هناك.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>أحد أرقام النسخ مستخدم بالفعل.</translation>
    </message>
    <message>
        <source>Adding of a part</source>
        <translation>إضافة قطعة</translation>
    </message>
    <message>
        <source>There is no such kind of part.</source>
        <translation>لا يوجد نوع كهذا من القطع.</translation>
    </message>
    <message>
        <source>Adding of a subpart</source>
        <translation>إضافة قطعة فرعية</translation>
    </message>
    <message>
        <source>The part is not there any more.</source>
        <translation>لم تعد القطعة موجودة.</translation>
    </message>
    <message>
        <source>The part cannot have a subpart of the class &quot;%1&quot;.</source>
        <translation>لا يمكن أن تكون للقطعة قطعة فرعية من الصنف &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The part has all the subparts of that role that it can have.</source>
        <translation>للقطعة بالفعل كل القطع الفرعية الممكنة لهذا الدور.</translation>
    </message>
    <message>
        <source>Adding of a scene</source>
        <translation>إضافة مشهد</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>لم تبقَ في المستند معرّفات مثيلات لكائنات جديدة.</translation>
    </message>
</context>
<context>
    <name>AddResourceCommand</name>
    <message>
        <source>Import of %1</source>
        <translation>استيراد %1</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>لا يوجد ما يُستورد.</translation>
    </message>
</context>
<context>
    <name>AdvancedPalette</name>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>Click Action</source>
        <translation>إجراء النقر</translation>
    </message>
    <message>
        <source>Duplication</source>
        <translation>المضاعفة</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Show the pop-up</source>
        <translation>عرض النافذة المنبثقة</translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation>فتح رابط</translation>
    </message>
    <message>
        <source>Show a scene</source>
        <translation>عرض مشهد</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>ال&amp;رابط</translation>
    </message>
    <message>
        <source>&amp;Scene</source>
        <translation>ال&amp;مشهد</translation>
    </message>
    <message>
        <source>Clic&amp;k</source>
        <translation>ال&amp;نقر</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> مم</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>النس&amp;خ</translation>
    </message>
    <message>
        <source>Offset ri&amp;ght</source>
        <translation>الإزاحة إلى ال&amp;يمين</translation>
    </message>
    <message>
        <source>Offset &amp;down</source>
        <translation>الإزاحة إلى الأس&amp;فل</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>م&amp;ضاعفة</translation>
    </message>
    <message>
        <source>Adds the copies, each beside the one before it</source>
        <translation>يضيف النسخ، كل واحدة بجانب سابقتها</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>What is selected has no pop-up</source>
        <translation>ليس لما هو محدد نافذة منبثقة</translation>
    </message>
    <message>
        <source>Select a part to see its pop-up</source>
        <translation>حدد قطعة لترى نافذتها المنبثقة</translation>
    </message>
    <message>
        <source>Show &amp;Pop-up</source>
        <translation>&amp;عرض النافذة المنبثقة</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>يُفتح حين يستقر ال&amp;مؤشر عليه</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>يفتح النافذة المنبثقة بلا نقر.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>يختفي &amp;بعد القراءة</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>يخفي الزر بعد إغلاق نافذته المنبثقة.</translation>
    </message>
</context>
<context>
    <name>AssocPalette</name>
    <message>
        <source>Associations</source>
        <translation>العلاقات</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>الارتباطات</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>القطع الفرعية</translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation>الانعكاسات</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>Select a part to see what it has to do with.</source>
        <translation>حدد قطعة لترى ما لها صلة به.</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>عدة قطع محددة</translation>
    </message>
    <message>
        <source>New Link</source>
        <translation>ارتباط جديد</translation>
    </message>
</context>
<context>
    <name>AssociationList</name>
    <message>
        <source>Remove the reflection</source>
        <translation>إزالة الانعكاس</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>فصل</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>و%1 أخرى</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>تحديد</translation>
    </message>
</context>
<context>
    <name>Associations</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>تتبع</translation>
    </message>
    <message>
        <source>Followed by</source>
        <translation>تتبعها</translation>
    </message>
    <message>
        <source>%1 of %2 follows %3 of %4</source>
        <translation>%1 من %2 تتبع %3 من %4</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
    <message>
        <source>Pads</source>
        <translation>نقاط اللحام</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>الجسم</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>Parts in it</source>
        <translation>القطع بداخلها</translation>
    </message>
    <message>
        <source>Refers to</source>
        <translation>تشير إلى</translation>
    </message>
    <message>
        <source>Reflection of</source>
        <translation>انعكاس لـ</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 في %2</translation>
    </message>
</context>
<context>
    <name>BrandWidget</name>
    <message>
        <source>About the product</source>
        <translation>حول المنتج</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>Black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>Dim grey</source>
        <translation>رمادي داكن</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>فضي</translation>
    </message>
    <message>
        <source>White</source>
        <translation>أبيض</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>بني</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>كستنائي</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>وردي</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>ليموني</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>بنفسجي</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>أرجواني فاتح</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>ذهبي</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>زيتوني</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>أزرق مخضر</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>أزرق سماوي</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>كحلي</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>نيلي</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>أحمر داكن</translation>
    </message>
    <message>
        <source>Light red</source>
        <translation>أحمر فاتح</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>برتقالي فاتح</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>أصفر داكن</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>أصفر فاتح</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>أخضر داكن</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>أخضر فاتح</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>سماوي داكن</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>سماوي فاتح</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>أزرق داكن</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>أزرق فاتح</translation>
    </message>
    <message>
        <source>Dark violet</source>
        <translation>بنفسجي داكن</translation>
    </message>
    <message>
        <source>Light violet</source>
        <translation>بنفسجي فاتح</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>أرجواني داكن</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>رمادي داكن</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>رمادي فاتح</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>شفاف</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colours</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Standard colours</source>
        <translation>الألوان المعتادة</translation>
    </message>
    <message>
        <source>Colours in this document</source>
        <translation>الألوان في هذا المستند</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>الم&amp;زيد...</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>تصريحات نوع المستند غير مسموح بها</translation>
    </message>
    <message>
        <source>this is no recorded session</source>
        <translation>هذه ليست جلسة مسجلة</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>رقم إصدار التنسيق مفقود أو غير معروف</translation>
    </message>
    <message>
        <source>there is no command &lt;%1&gt;</source>
        <translation>لا يوجد أمر &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the content of &lt;%1&gt; is faulty</source>
        <translation>محتوى &lt;%1&gt; غير صحيح</translation>
    </message>
    <message>
        <source>&lt;%1&gt; failed: %2</source>
        <translation>فشل &lt;%1&gt;: %2</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>لا يوجد ما يُتراجع عنه</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>لا يوجد ما يُعاد</translation>
    </message>
</context>
<context>
    <name>CommandLogPane</name>
    <message>
        <source>Re&amp;cord</source>
        <translation>&amp;تسجيل</translation>
    </message>
    <message>
        <source>&amp;Save Recording...</source>
        <translation>&amp;حفظ التسجيل...</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>الأوامر</translation>
    </message>
    <message>
        <source>No command was given yet.</source>
        <translation>لم يُعطَ أي أمر بعد.</translation>
    </message>
    <message>
        <source>Record what is done to the document from now on</source>
        <translation>تسجيل ما يجري على المستند من الآن فصاعدًا</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;مسح</translation>
    </message>
    <message>
        <source>Save Recording</source>
        <translation>حفظ التسجيل</translation>
    </message>
    <message>
        <source>Recorded sessions (*.xml)</source>
        <translation>جلسات مسجلة (*.xml)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>لا يمكن كتابة %1: %2</translation>
    </message>
</context>
<context>
    <name>ConfirmingObserverCheckBox</name>
    <message>
        <source>Change property value</source>
        <translation>تغيير قيمة الخاصية</translation>
    </message>
</context>
<context>
    <name>DebugConsole</name>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
</context>
<context>
    <name>DebugPalette</name>
    <message>
        <source>Debugging</source>
        <translation>تصحيح الأخطاء</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>الأداء</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>الأوامر</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>لا شيء محدد.</translation>
    </message>
    <message>
        <source>%1 (the first of %2 selected)</source>
        <translation>%1 (الأولى من %2 محددة)</translation>
    </message>
</context>
<context>
    <name>DeleteNodeCommand</name>
    <message>
        <source>Deletion of %1</source>
        <translation>حذف %1</translation>
    </message>
    <message numerus="yes">
        <source>Deletion of %n object(s)</source>
        <translation>
            <numerusform>لا حذف (%n)</numerusform>
            <numerusform>حذف كائن واحد (%n)</numerusform>
            <numerusform>حذف كائنين (%n)</numerusform>
            <numerusform>حذف %n كائنات</numerusform>
            <numerusform>حذف %n كائنًا</numerusform>
            <numerusform>حذف %n كائن</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>لم يعد الكائن موجودًا.</translation>
    </message>
    <message>
        <source>The document itself and pop-ups cannot be deleted.</source>
        <translation>لا يمكن حذف المستند نفسه ولا النوافذ المنبثقة.</translation>
    </message>
    <message>
        <source>The subpart belongs to its part and cannot be deleted.</source>
        <translation>القطعة الفرعية تنتمي إلى قطعتها ولا يمكن حذفها.</translation>
    </message>
    <message>
        <source>The last scene cannot be deleted.</source>
        <translation>لا يمكن حذف المشهد الأخير.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>this is no document</source>
        <translation>هذا ليس مستندًا</translation>
    </message>
    <message>
        <source>this is no document: it begins with &lt;%1&gt;</source>
        <translation>هذا ليس مستندًا: إنه يبدأ بـ &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the document has no model</source>
        <translation>ليس للمستند نموذج</translation>
    </message>
    <message>
        <source>the format version is missing or no number</source>
        <translation>رقم إصدار التنسيق مفقود أو ليس رقمًا</translation>
    </message>
    <message>
        <source>the format version is %1; this program reads versions up to %2</source>
        <translation>إصدار التنسيق هو %1؛ هذا البرنامج يقرأ الإصدارات حتى %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no instance id</source>
        <translation>&quot;%1&quot; ليس رقم نسخة</translation>
    </message>
    <message>
        <source>a document has one model only</source>
        <translation>للمستند نموذج واحد فقط</translation>
    </message>
    <message>
        <source>the document has no scene</source>
        <translation>ليس للمستند مشهد</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand here</source>
        <translation>لا يمكن لـ &lt;%1&gt; أن يكون هنا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a document&apos;s resource</source>
        <translation>&quot;%1&quot; ليس اسم مورد من موارد المستند</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of resource</source>
        <translation>&quot;%1&quot; ليس نوع مورد</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is there twice</source>
        <translation>المورد &quot;%1&quot; موجود مرتين</translation>
    </message>
    <message>
        <source>only text can stand here</source>
        <translation>لا يمكن أن يكون هنا إلا نص</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is larger than 64 MB</source>
        <translation>المورد &quot;%1&quot; أكبر من 64 ميغابايت</translation>
    </message>
    <message>
        <source>the data of resource &quot;%1&quot; are damaged</source>
        <translation>بيانات المورد &quot;%1&quot; تالفة</translation>
    </message>
    <message>
        <source>the next instance id was %1, which is too low; it is %2 now</source>
        <translation>رقم النسخة التالي كان %1، وهو أصغر من اللازم؛ هو الآن %2</translation>
    </message>
    <message>
        <source>nodes are nested deeper than %1</source>
        <translation>العُقد متداخلة أعمق من %1</translation>
    </message>
    <message>
        <source>this is no fragment</source>
        <translation>هذا ليس جزءًا من مستند</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>رقم إصدار التنسيق مفقود أو غير معروف</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n more warning(s) left out</source>
        <translation>
            <numerusform>%1 لا تحذيرات أخرى محذوفة (%n)</numerusform>
            <numerusform>%1 حُذف تحذير آخر (%n)</numerusform>
            <numerusform>%1 حُذف تحذيران آخران (%n)</numerusform>
            <numerusform>%1 حُذفت %n تحذيرات أخرى</numerusform>
            <numerusform>%1 حُذف %n تحذيرًا آخر</numerusform>
            <numerusform>%1 حُذف %n تحذير آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>attribute &quot;%1&quot; of &lt;%2&gt; is not known and was dropped</source>
        <translation>السمة &quot;%1&quot; للعنصر &lt;%2&gt; غير معروفة وأُسقطت</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>الصنف مفقود</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no domain</source>
        <translation>&quot;%1&quot; لا يسمي أي مجال</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known</source>
        <translation>الصنف &quot;%1&quot; غير معروف</translation>
    </message>
    <message>
        <source>more than %1 classes are not known</source>
        <translation>أكثر من %1 من الأصناف غير معروفة</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known; kept as it is</source>
        <translation>الصنف &quot;%1&quot; غير معروف؛ أُبقي كما هو</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is of another kind than &lt;%2&gt;</source>
        <translation>الصنف &quot;%1&quot; من نوع آخر غير &lt;%2&gt;</translation>
    </message>
    <message>
        <source>instance id %1 is used twice</source>
        <translation>رقم النسخة %1 مستخدم مرتين</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lock</source>
        <translation>&quot;%1&quot; ليس قفلًا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>&quot;%1&quot; ليس true ولا false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of reflection</source>
        <translation>&quot;%1&quot; ليس نوعًا من الانعكاس</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no class</source>
        <translation>ليس لـ &lt;%1&gt; صنف</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no instance id</source>
        <translation>ليس لـ &lt;%1&gt; رقم نسخة</translation>
    </message>
    <message>
        <source>a reflection needs both what it reflects and which kind it is</source>
        <translation>يحتاج الانعكاس إلى ما يعكسه وإلى نوعه معًا</translation>
    </message>
    <message numerus="yes">
        <source>there are more than %n nodes</source>
        <translation>
            <numerusform>لا توجد عُقد (%n)</numerusform>
            <numerusform>توجد أكثر من عقدة (%n)</numerusform>
            <numerusform>توجد أكثر من عقدتين (%n)</numerusform>
            <numerusform>توجد أكثر من %n عُقد</numerusform>
            <numerusform>توجد أكثر من %n عقدة</numerusform>
            <numerusform>توجد أكثر من %n عقدة</numerusform>
        </translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no node</source>
        <translation>&lt;%1&gt; ليس عقدة</translation>
    </message>
    <message>
        <source>text cannot stand here</source>
        <translation>لا يمكن أن يكون هنا نص</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>تصريحات نوع المستند غير مسموح بها</translation>
    </message>
    <message>
        <source>this cannot stand here</source>
        <translation>لا يمكن لهذا أن يكون هنا</translation>
    </message>
    <message>
        <source>nothing can stand after the end of the document</source>
        <translation>لا يمكن أن يأتي شيء بعد نهاية المستند</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known; kept as it is</source>
        <translation>&lt;%1&gt; غير معروف؛ أُبقي كما هو</translation>
    </message>
    <message>
        <source>a part has one pop-up only</source>
        <translation>للقطعة نافذة منبثقة واحدة فقط</translation>
    </message>
    <message>
        <source>&lt;value&gt; has no key</source>
        <translation>ليس لـ &lt;value&gt; مفتاح</translation>
    </message>
    <message>
        <source>a proxy needs both a node and a key to follow</source>
        <translation>يحتاج الارتباط إلى عقدة ومفتاح معًا ليتبعهما</translation>
    </message>
    <message>
        <source>the text of a value is longer than 64 MB</source>
        <translation>نص القيمة أطول من 64 ميغابايت</translation>
    </message>
    <message>
        <source>this is no %1</source>
        <translation>هذا ليس من النوع %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 (property &quot;%3&quot;)</source>
        <translation>&quot;%1&quot; ليس من النوع %2 (الخاصية &quot;%3&quot;)</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; has no property &quot;%2&quot;; kept as it is</source>
        <translation>ليس للصنف &quot;%1&quot; خاصية &quot;%2&quot;؛ أُبقيت كما هي</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is not kept in files; dropped</source>
        <translation>الخاصية &quot;%1&quot; لا تُحفظ في الملفات؛ أُسقطت</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is given twice; the first value counts</source>
        <translation>الخاصية &quot;%1&quot; معطاة مرتين؛ تُحسب القيمة الأولى</translation>
    </message>
    <message>
        <source>the value of property &quot;%1&quot; is not allowed; kept: %2</source>
        <translation>قيمة الخاصية &quot;%1&quot; غير مسموح بها؛ أُبقيت: %2</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is used twice; kept</source>
        <translation>المعرّف &quot;%1&quot; مستخدم مرتين؛ أُبقي</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; of node %2 follows itself, directly or through others</source>
        <translation>الخاصية &quot;%1&quot; للعقدة %2 تتبع نفسها، مباشرة أو عبر غيرها</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; follows one that is not there (&quot;%2&quot; of node %3); kept as it is</source>
        <translation>الخاصية &quot;%1&quot; تتبع خاصية غير موجودة (&quot;%2&quot; للعقدة %3)؛ أُبقيت كما هي</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; (%2) cannot follow &quot;%3&quot; (%4)</source>
        <translation>الخاصية &quot;%1&quot; (%2) لا يمكنها أن تتبع &quot;%3&quot; (%4)</translation>
    </message>
    <message>
        <source>node %1, which is reflected here, is not there; kept as it is</source>
        <translation>العقدة %1، المنعكسة هنا، غير موجودة؛ أُبقي كما هو</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>العناصر متداخلة أعمق من اللازم</translation>
    </message>
    <message>
        <source>an unknown element is longer than 64 MB</source>
        <translation>عنصر غير معروف أطول من 64 ميغابايت</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>هل تُحفظ التغييرات في %1؟</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>لا يمكن فتح %1.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>تعذر حفظ %1.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>حُفظ %1</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>استرجاع</translation>
    </message>
    <message>
        <source>Lose all changes made since %1 was last saved?</source>
        <translation>هل تريد فقد كل التغييرات منذ آخر حفظ لـ %1؟</translation>
    </message>
    <message>
        <source>Changed by another program</source>
        <translation>عدّله برنامج آخر</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>عدّل برنامج آخر %1.</translation>
    </message>
    <message>
        <source>Saving replaces what it wrote.</source>
        <translation>الحفظ يحلّ محلّ ما كتبه.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>حفظ &amp;باسم...</translation>
    </message>
    <message>
        <source>Nothing is kept for recovery: %1</source>
        <translation>لا يُحتفظ بشيء للاسترجاع: %1</translation>
    </message>
    <message>
        <source>The document cannot be recovered.</source>
        <translation>لا يمكن استرجاع المستند.</translation>
    </message>
    <message>
        <source>%1
The file is now %2.</source>
        <translation>%1
الملف الآن %2.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Lose what can be recovered?</source>
        <translation>هل تريد فقدان ما يمكن استرجاعه؟</translation>
    </message>
</context>
<context>
    <name>DocumentImpl</name>
    <message>
        <source>There is no such part.</source>
        <translation>لا توجد قطعة كهذه.</translation>
    </message>
    <message>
        <source>The id names no class of a domain.</source>
        <translation>المعرّف لا يسمي أي صنف من مجال.</translation>
    </message>
    <message>
        <source>The id is already in use.</source>
        <translation>المعرّف مستخدم بالفعل.</translation>
    </message>
    <message>
        <source>Nothing can be changed while an undo or redo is under way.</source>
        <translation>لا يمكن تغيير شيء أثناء تراجع أو إعادة.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ExpressionParser</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>التعبير غير مكتمل.</translation>
    </message>
    <message>
        <source>A closing bracket is missing.</source>
        <translation>ينقص قوس إغلاق.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not known.</source>
        <translation>&quot;%1&quot; عند الموضع %2 غير معروف.</translation>
    </message>
    <message>
        <source>The function before position %1 takes another number of arguments.</source>
        <translation>الدالة قبل الموضع %1 تأخذ عددًا آخر من المعاملات.</translation>
    </message>
    <message>
        <source>The expression is not correct at position %1.</source>
        <translation>التعبير غير صحيح عند الموضع %1.</translation>
    </message>
    <message>
        <source>The result is not a number.</source>
        <translation>النتيجة ليست عددًا.</translation>
    </message>
    <message>
        <source>The result is too large, or something is divided by zero.</source>
        <translation>النتيجة أكبر من اللازم، أو هناك قسمة على صفر.</translation>
    </message>
    <message>
        <source>The expression is too long.</source>
        <translation>التعبير أطول من اللازم.</translation>
    </message>
    <message>
        <source>There is no number.</source>
        <translation>لا يوجد عدد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not a unit that can be converted to %3.</source>
        <translation>&quot;%1&quot; عند الموضع %2 ليست وحدة يمكن تحويلها إلى %3.</translation>
    </message>
    <message>
        <source>Too many brackets are open.</source>
        <translation>عدد الأقواس المفتوحة أكبر من اللازم.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not expected there.</source>
        <translation>&quot;%1&quot; غير متوقع عند الموضع %2.</translation>
    </message>
</context>
<context>
    <name>FlowchartBar</name>
    <message>
        <source>Flowcharts</source>
        <translation>المخططات الانسيابية</translation>
    </message>
    <message>
        <source>&amp;Run Flowcharts</source>
        <translation>&amp;تشغيل المخططات الانسيابية</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them</source>
        <translation>تشغيل المخططات الانسيابية أو إيقافها</translation>
    </message>
    <message>
        <source>Run flowcharts</source>
        <translation>تشغيل المخططات الانسيابية</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them (F5)</source>
        <translation>تشغيل المخططات الانسيابية أو إيقافها (F5)</translation>
    </message>
    <message>
        <source>All flowcharts have come to their end.</source>
        <translation>وصلت كل المخططات الانسيابية إلى نهايتها.</translation>
    </message>
    <message>
        <source>There is no flowchart in this document: add a start block first.</source>
        <translation>لا يوجد مخطط انسيابي في هذا المستند: أضف كتلة بداية أولًا.</translation>
    </message>
    <message>
        <source>Flowchart</source>
        <translation>مخطط انسيابي</translation>
    </message>
</context>
<context>
    <name>FlowchartRunner</name>
    <message>
        <source>The block &quot;%1&quot; waits for &quot;%2&quot;, but nothing has that output name.</source>
        <translation>الكتلة &quot;%1&quot; تنتظر &quot;%2&quot;، لكن لا شيء يحمل اسم الخرج هذا.</translation>
    </message>
    <message>
        <source>The chart leads to &quot;%1&quot;, which is no block.</source>
        <translation>المخطط يقود إلى &quot;%1&quot;، وهي ليست كتلة.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; switches &quot;%2&quot;, but nothing has that output name.</source>
        <translation>الكتلة &quot;%1&quot; تبدّل &quot;%2&quot;، لكن لا شيء يحمل اسم الخرج هذا.</translation>
    </message>
    <message>
        <source>Nothing follows the block &quot;%1&quot;: the chart ends there.</source>
        <translation>لا شيء يلي الكتلة &quot;%1&quot;: ينتهي المخطط هناك.</translation>
    </message>
    <message>
        <source>Nothing follows one of the answers of &quot;%1&quot;: the chart ends there.</source>
        <translation>لا شيء يلي أحد أجوبة &quot;%1&quot;: ينتهي المخطط هناك.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; has no start block in its pop-up.</source>
        <translation>ليس للإجراء &quot;%1&quot; كتلة بداية في نافذته المنبثقة.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; calls itself again and again.</source>
        <translation>الإجراء &quot;%1&quot; يستدعي نفسه مرارًا وتكرارًا.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; does not say what it asks.</source>
        <translation>القرار &quot;%1&quot; لا يقول عمّا يسأل.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; asks &quot;%2&quot;, but nothing has that output name.</source>
        <translation>القرار &quot;%1&quot; يسأل عن &quot;%2&quot;، لكن لا شيء يحمل اسم الخرج هذا.</translation>
    </message>
</context>
<context>
    <name>FlowchartSpeedWidget</name>
    <message>
        <source>Speed of the flowcharts</source>
        <translation>سرعة المخططات الانسيابية</translation>
    </message>
    <message>
        <source>How fast the flowcharts run</source>
        <translation>بأي سرعة تعمل المخططات الانسيابية</translation>
    </message>
    <message>
        <source>Flowcharts:</source>
        <translation>المخططات:</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>خطوة</translation>
    </message>
    <message>
        <source>Run the next block</source>
        <translation>تنفيذ الكتلة التالية</translation>
    </message>
</context>
<context>
    <name>FontChooser</name>
    <message>
        <source>Light</source>
        <translation>خفيف</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Half bold</source>
        <translation>نصف عريض</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>عريض</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>سميك جدًا</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz 123</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>عينة</translation>
    </message>
    <message>
        <source>All fonts...</source>
        <translation>كل الخطوط...</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>%1, family</source>
        <translation>%1، العائلة</translation>
    </message>
    <message>
        <source>%1, size in points</source>
        <translation>%1، الحجم بالنقاط</translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation>الحجم بالنقاط</translation>
    </message>
    <message>
        <source>%1, weight</source>
        <translation>%1، السماكة</translation>
    </message>
    <message>
        <source>%1, italic</source>
        <translation>%1، مائل</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1000.</source>
        <translation>الحجم عدد من 1 إلى 1000.</translation>
    </message>
</context>
<context>
    <name>FormChecker</name>
    <message>
        <source>scenes and pop-ups have no subparts to choose from</source>
        <translation>ليس للمشاهد والنوافذ المنبثقة قطع فرعية للاختيار منها</translation>
    </message>
    <message>
        <source>the list stays empty: nodes of the class have no such subparts, and none can be added</source>
        <translation>تبقى القائمة فارغة: ليس لعقد الفئة مثل هذه القطع الفرعية، ولا يمكن إضافة أي منها</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind</source>
        <translation>لا توجد خاصية &quot;%1&quot; لربطها</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind; did you mean &quot;%2&quot;?</source>
        <translation>لا توجد خاصية &quot;%1&quot; لربطها؛ هل تقصد &quot;%2&quot;؟</translation>
    </message>
    <message>
        <source>the key of the property to bind is missing</source>
        <translation>مفتاح الخاصية المراد ربطها ناقص</translation>
    </message>
    <message>
        <source>there are no subparts &quot;%1&quot; to bind</source>
        <translation>لا توجد قطع فرعية &quot;%1&quot; لربطها</translation>
    </message>
    <message>
        <source>not all subparts that can be chosen have the property &quot;%1&quot;</source>
        <translation>ليست كل القطع الفرعية التي يمكن اختيارها لها الخاصية &quot;%1&quot;</translation>
    </message>
    <message>
        <source>new nodes have no subparts &quot;%1&quot;: the form is not shown for them</source>
        <translation>ليس للعقد الجديدة قطع فرعية &quot;%1&quot;: لا يُعرض النموذج لها</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the type %2, but the control takes %3</source>
        <translation>&quot;%1&quot; من النوع %2، لكن عنصر التحكم يأخذ %3</translation>
    </message>
    <message>
        <source>the values that &quot;%1&quot; may take cannot be listed</source>
        <translation>لا يمكن سرد القيم التي يجوز أن تأخذها &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the button stands for nothing in the group &apos;%1&apos;: %2</source>
        <translation>الزر لا يمثل شيئًا في المجموعة &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>the name is taken by what begins in line %1: connections and buddies find only one of them</source>
        <translation>الاسم مستعمل لما يبدأ في السطر %1: الاتصالات والعناصر المرافقة لا تجد إلا واحدًا منهما</translation>
    </message>
    <message>
        <source>a widget of this class keeps what is in it to itself: the top widget of a form has to be a QWidget</source>
        <translation>العنصر من هذه الفئة يحتفظ بمحتواه لنفسه: يجب أن يكون العنصر الأعلى في النموذج QWidget</translation>
    </message>
    <message>
        <source>the form has no section: directly in its top widget there must be a PaletteBoxSection</source>
        <translation>ليس في النموذج قسم: يجب أن توجد PaletteBoxSection مباشرة في عنصره الأعلى</translation>
    </message>
    <message>
        <source>it stands outside all sections and is never shown</source>
        <translation>يقع خارج كل الأقسام ولا يُعرض أبدًا</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>الفئة ناقصة</translation>
    </message>
    <message>
        <source>there is no such class</source>
        <translation>لا توجد مثل هذه الفئة</translation>
    </message>
    <message>
        <source>there is no such class; did you mean %1?</source>
        <translation>لا توجد مثل هذه الفئة؛ هل تقصد %1؟</translation>
    </message>
    <message>
        <source>there is no such class; a %1, which it refines, is shown in its place</source>
        <translation>لا توجد مثل هذه الفئة؛ يُعرض بدلًا منها %1 الذي تخصصه</translation>
    </message>
    <message>
        <source>the class has no such property</source>
        <translation>ليس للفئة هذه الخاصية</translation>
    </message>
    <message>
        <source>the class has no such property; did you mean &quot;%1&quot;?</source>
        <translation>ليس للفئة هذه الخاصية؛ هل تقصد &quot;%1&quot;؟</translation>
    </message>
    <message>
        <source>there is no value; &lt;%1&gt; is needed</source>
        <translation>لا توجد قيمة؛ يلزم &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is given where &lt;%2&gt; is needed</source>
        <translation>ورد &lt;%1&gt; حيث يلزم &lt;%2&gt;</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 ليس عددًا</translation>
    </message>
    <message>
        <source>at most %1 are possible</source>
        <translation>الحد الأقصى الممكن %1</translation>
    </message>
    <message>
        <source>%1 is neither &quot;true&quot; nor &quot;false&quot;</source>
        <translation>%1 ليست &quot;true&quot; ولا &quot;false&quot;</translation>
    </message>
    <message>
        <source>%1 is none of %2</source>
        <translation>%1 ليس ضمن %2</translation>
    </message>
    <message>
        <source>the picture %1 is no resource of the program: whether it is found depends on the folder in which the program is started</source>
        <translation>الصورة %1 ليست موردًا للبرنامج: العثور عليها يتوقف على المجلد الذي يُشغَّل فيه البرنامج</translation>
    </message>
    <message>
        <source>there is no picture %1</source>
        <translation>لا توجد صورة %1</translation>
    </message>
    <message>
        <source>there is no widget %1</source>
        <translation>لا يوجد عنصر %1</translation>
    </message>
    <message>
        <source>there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>لا يوجد عنصر %1؛ هل تقصد &quot;%2&quot;؟</translation>
    </message>
    <message>
        <source>the text is missing: a control over two texts needs both, not empty</source>
        <translation>النص ناقص: عنصر التحكم الخاص بنصين يحتاج إليهما معًا غير فارغين</translation>
    </message>
    <message>
        <source>the signal %1 does not bring what the slot %2 takes</source>
        <translation>الإشارة %1 لا تحمل ما يأخذه المستقبِل %2</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1</source>
        <translation>الاتصال لا يؤدي إلى شيء: لا يوجد عنصر %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>الاتصال لا يؤدي إلى شيء: لا يوجد عنصر %1؛ هل تقصد &quot;%2&quot;؟</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no signal %1</source>
        <translation>الاتصال لا يؤدي إلى شيء: ليس للفئة إشارة %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no slot %1</source>
        <translation>الاتصال لا يؤدي إلى شيء: ليس للفئة مستقبِل %1</translation>
    </message>
    <message>
        <source>the connection closes a circle: %1 would switch itself for ever</source>
        <translation>الاتصال يغلق حلقة: سيبدّل %1 نفسه إلى ما لا نهاية</translation>
    </message>
    <message>
        <source>the tab order names %1, but there is no such widget</source>
        <translation>ترتيب التنقل يذكر %1، لكن لا يوجد مثل هذا العنصر</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;set&quot;</source>
        <translation>تبقى القائمة فارغة: تحتاج الخاصية إلى قاعدة تحقق من النوع &quot;set&quot;</translation>
    </message>
    <message>
        <source>the list stays empty: the property&apos;s validator allows no value</source>
        <translation>تبقى القائمة فارغة: قاعدة التحقق من الخاصية لا تسمح بأي قيمة</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;resources&quot;</source>
        <translation>تبقى القائمة فارغة: تحتاج الخاصية إلى قاعدة تحقق من النوع &quot;resources&quot;</translation>
    </message>
    <message>
        <source>no unit is shown: the property has neither a unit nor a format with units</source>
        <translation>لا تُعرض وحدة: ليس للخاصية وحدة ولا تنسيق ذو وحدات</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; ليست قيمة من النوع %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value that the property may take</source>
        <translation>&quot;%1&quot; ليست قيمة يجوز أن تأخذها الخاصية</translation>
    </message>
</context>
<context>
    <name>FormDescription</name>
    <message>
        <source>the form has more than %1 widgets, layouts and connections</source>
        <translation>في النموذج أكثر من %1 من العناصر والتخطيطات والاتصالات</translation>
    </message>
    <message>
        <source>the elements are nested more than %1 deep</source>
        <translation>العناصر متداخلة بعمق أكبر من %1</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>أنواع المستندات والكيانات غير مفهومة</translation>
    </message>
    <message>
        <source>this is no form but &lt;%1&gt;</source>
        <translation>هذا ليس نموذجًا بل &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the form has no widget</source>
        <translation>ليس في النموذج عنصر</translation>
    </message>
    <message>
        <source>the form has the version %1, 4.0 is needed</source>
        <translation>إصدار النموذج %1، والمطلوب 4.0</translation>
    </message>
    <message>
        <source>a form has one top widget, this is the second</source>
        <translation>للنموذج عنصر أعلى واحد، وهذا هو الثاني</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 of a grid; at most %3 are possible</source>
        <translation>&quot;%1&quot; ليس %2 في شبكة؛ الحد الأقصى الممكن %3</translation>
    </message>
    <message>
        <source>%1 is larger than anything that can be shown</source>
        <translation>%1 أكبر من أي شيء يمكن عرضه</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines itself</source>
        <translation>الفئة &quot;%1&quot; تخصص نفسها</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines too many others</source>
        <translation>الفئة &quot;%1&quot; تخصص فئات كثيرة جدًا</translation>
    </message>
    <message>
        <source>the form is larger than %1 MB</source>
        <translation>النموذج أكبر من %1 م.ب</translation>
    </message>
</context>
<context>
    <name>FormFaultSection</name>
    <message>
        <source>Faulty Form</source>
        <translation>نموذج معيب</translation>
    </message>
    <message>
        <source>The form &quot;%1&quot; is faulty and is not shown. What its author has to mend:</source>
        <translation>النموذج &quot;%1&quot; معيب ولا يُعرض. ما على مؤلفه إصلاحه:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا شيء آخر</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n أخرى</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormGate</name>
    <message>
        <source>there is no form of this name</source>
        <translation>لا يوجد نموذج بهذا الاسم</translation>
    </message>
    <message>
        <source>what is selected has no subpart &quot;%1&quot; with the property &quot;%2&quot;</source>
        <translation>ما هو محدد ليس له قطعة فرعية &quot;%1&quot; ذات الخاصية &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the toolkit cannot read the form, or makes no section of it directly in its top widget</source>
        <translation>لا تستطيع المكتبة قراءة النموذج، أو لا تنشئ منه قسمًا مباشرة في عنصره الأعلى</translation>
    </message>
</context>
<context>
    <name>GetCustomPartLabel</name>
    <message>
        <source>Choose custom part label</source>
        <translation>اختيار عنوان القطعة الخاصة</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;عنوان القطعة:</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>يظهر عنوان القطعة في شجرة القطع.</translation>
    </message>
    <message>
        <source>&amp;Save Part</source>
        <translation>&amp;حفظ القطعة</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;رجوع</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>ال&amp;محتويات</translation>
    </message>
</context>
<context>
    <name>IdProvider</name>
    <message>
        <source>The id must not be empty.</source>
        <translation>يجب ألا يكون المعرّف فارغًا.</translation>
    </message>
    <message>
        <source>The id is longer than 100 characters.</source>
        <translation>المعرّف أطول من 100 حرف.</translation>
    </message>
    <message>
        <source>The id must not contain blanks.</source>
        <translation>يجب ألا يحتوي المعرّف على مسافات.</translation>
    </message>
    <message>
        <source>Another subpart has this id.</source>
        <translation>لقطعة فرعية أخرى هذا المعرّف.</translation>
    </message>
    <message>
        <source>Another part has this id.</source>
        <translation>لقطعة أخرى هذا المعرّف.</translation>
    </message>
</context>
<context>
    <name>InsertMenu</name>
    <message>
        <source>Connect the two selected parts</source>
        <translation>وصل القطعتين المحددتين</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>المفتش</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>الصنف</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>المعرّف</translation>
    </message>
    <message>
        <source>InstanceId</source>
        <translation>رقم النسخة</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>العُقد</translation>
    </message>
</context>
<context>
    <name>Licence</name>
    <message>
        <source>Please enter the licence code.</source>
        <translation>يرجى إدخال رمز الترخيص.</translation>
    </message>
    <message>
        <source>Typing error in group %1: &quot;%2&quot; does not occur in licence codes.</source>
        <translation>خطأ كتابة في المجموعة %1: &quot;%2&quot; لا يرد في رموز الترخيص.</translation>
    </message>
    <message>
        <source>Typing error in group %1: it has %2 characters instead of %3.</source>
        <translation>خطأ كتابة في المجموعة %1: فيها %2 من الأحرف بدلًا من %3.</translation>
    </message>
    <message>
        <source>The code is too long: no licence code has so many groups.</source>
        <translation>الرمز أطول من اللازم: لا رمز ترخيص فيه هذا العدد من المجموعات.</translation>
    </message>
    <message>
        <source>Typing error in group %1: please compare it letter by letter. Groups may also be missing, doubled or exchanged.</source>
        <translation>خطأ كتابة في المجموعة %1: يرجى مقارنتها حرفًا حرفًا. قد تكون مجموعات ناقصة أو مكررة أو متبادلة.</translation>
    </message>
    <message>
        <source>The secret key cannot be used.</source>
        <translation>لا يمكن استخدام المفتاح السري.</translation>
    </message>
    <message>
        <source>A licence needs a holder and a product.</source>
        <translation>يحتاج الترخيص إلى صاحب ومنتج.</translation>
    </message>
    <message>
        <source>The dates of a licence lie between 2000 and 2179, and it does not expire before it is issued.</source>
        <translation>تقع تواريخ الترخيص بين 2000 و2179، ولا ينتهي قبل أن يصدر.</translation>
    </message>
    <message>
        <source>A licence has from 1 to 65535 seats.</source>
        <translation>للترخيص من 1 إلى 65535 مقعدًا.</translation>
    </message>
    <message>
        <source>Holder, product and edition have at most 80 letters each.</source>
        <translation>للصاحب والمنتج والإصدار 80 حرفًا لكل منها على الأكثر.</translation>
    </message>
    <message>
        <source>Holder, product and edition are too long together.</source>
        <translation>الصاحب والمنتج والإصدار معًا أطول من اللازم.</translation>
    </message>
    <message>
        <source>This code was not made for this program: its signature is not right. Please ask whoever gave it to you.</source>
        <translation>لم يُصنع هذا الرمز لهذا البرنامج: توقيعه غير صحيح. يرجى سؤال من أعطاك إياه.</translation>
    </message>
    <message>
        <source>The code has %1 groups, but %2 were entered.</source>
        <translation>للرمز %1 من المجموعات، لكن أُدخل منها %2.</translation>
    </message>
    <message>
        <source>This code is for the product %1; this program is %2.</source>
        <translation>هذا الرمز للمنتج %1؛ وهذا البرنامج هو %2.</translation>
    </message>
    <message>
        <source>This code was issued on %1, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>صدر هذا الرمز في %1، لكن ساعة هذا الحاسوب تقول إن اليوم هو %2. يرجى ضبط الساعة.</translation>
    </message>
    <message>
        <source>This licence expired on %1.</source>
        <translation>انتهى هذا الترخيص في %1.</translation>
    </message>
</context>
<context>
    <name>LicenceDialog</name>
    <message>
        <source>Licence</source>
        <translation>الترخيص</translation>
    </message>
    <message>
        <source>Licenc&amp;e code:</source>
        <translation>&amp;رمز الترخيص:</translation>
    </message>
    <message>
        <source>Licence code</source>
        <translation>رمز الترخيص</translation>
    </message>
    <message>
        <source>Paste the code here, or type it group by group</source>
        <translation>ألصق الرمز هنا، أو اكتبه مجموعة مجموعة</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>إ&amp;زالة</translation>
    </message>
    <message>
        <source>Forget the licence code on this computer</source>
        <translation>نسيان رمز الترخيص على هذا الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;موافق</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
    <message>
        <source>A licence code is made of groups of %1 letters and digits. Small letters are as good as capitals.</source>
        <translation>يتكون رمز الترخيص من مجموعات من %1 من الحروف والأرقام. الحروف الصغيرة كالكبيرة.</translation>
    </message>
    <message>
        <source>The code is right. It is for %1.</source>
        <translation>الرمز صحيح. إنه لـ %1.</translation>
    </message>
    <message numerus="yes">
        <source>Right so far: %n groups.</source>
        <translation>
            <numerusform>صحيح حتى الآن: لا مجموعات (%n).</numerusform>
            <numerusform>صحيح حتى الآن: مجموعة واحدة (%n).</numerusform>
            <numerusform>صحيح حتى الآن: مجموعتان (%n).</numerusform>
            <numerusform>صحيح حتى الآن: %n مجموعات.</numerusform>
            <numerusform>صحيح حتى الآن: %n مجموعة.</numerusform>
            <numerusform>صحيح حتى الآن: %n مجموعة.</numerusform>
        </translation>
    </message>
    <message>
        <source>How licence codes work</source>
        <translation>كيف تعمل رموز الترخيص</translation>
    </message>
</context>
<context>
    <name>LicenceManager</name>
    <message>
        <source>The program was used on %1 before, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>استُخدم البرنامج من قبل في %1، لكن ساعة هذا الحاسوب تقول إن اليوم هو %2. يرجى ضبط الساعة.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation.</source>
        <translation>نسخة تقييم غير مرخصة.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation. %1</source>
        <translation>نسخة تقييم غير مرخصة. %1</translation>
    </message>
    <message>
        <source>Licensed to %1.</source>
        <translation>مرخص لـ %1.</translation>
    </message>
    <message>
        <source>Licensed to %1, edition %2.</source>
        <translation>مرخص لـ %1، الإصدار %2.</translation>
    </message>
    <message numerus="yes">
        <source>For %n seats.</source>
        <translation>
            <numerusform>بلا مقاعد (%n).</numerusform>
            <numerusform>لمقعد واحد (%n).</numerusform>
            <numerusform>لمقعدين (%n).</numerusform>
            <numerusform>لـ %n مقاعد.</numerusform>
            <numerusform>لـ %n مقعدًا.</numerusform>
            <numerusform>لـ %n مقعد.</numerusform>
        </translation>
    </message>
    <message>
        <source>The licence expires today.</source>
        <translation>ينتهي الترخيص اليوم.</translation>
    </message>
    <message numerus="yes">
        <source>The licence expires in %n days.</source>
        <translation>
            <numerusform>ينتهي الترخيص اليوم (%n).</numerusform>
            <numerusform>ينتهي الترخيص خلال يوم واحد (%n).</numerusform>
            <numerusform>ينتهي الترخيص خلال يومين (%n).</numerusform>
            <numerusform>ينتهي الترخيص خلال %n أيام.</numerusform>
            <numerusform>ينتهي الترخيص خلال %n يومًا.</numerusform>
            <numerusform>ينتهي الترخيص خلال %n يوم.</numerusform>
        </translation>
    </message>
    <message>
        <source>unlicensed evaluation</source>
        <translation>نسخة تقييم غير مرخصة</translation>
    </message>
    <message>
        <source>licence expires today</source>
        <translation>ينتهي الترخيص اليوم</translation>
    </message>
    <message numerus="yes">
        <source>licence expires in %n days</source>
        <translation>
            <numerusform>ينتهي الترخيص اليوم (%n)</numerusform>
            <numerusform>ينتهي الترخيص خلال يوم واحد (%n)</numerusform>
            <numerusform>ينتهي الترخيص خلال يومين (%n)</numerusform>
            <numerusform>ينتهي الترخيص خلال %n أيام</numerusform>
            <numerusform>ينتهي الترخيص خلال %n يومًا</numerusform>
            <numerusform>ينتهي الترخيص خلال %n يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Printed with an unlicensed evaluation copy</source>
        <translation>طُبع بنسخة تقييم غير مرخصة</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
</context>
<context>
    <name>LinkPane</name>
    <message>
        <source>Pr&amp;operty that follows another</source>
        <translation>خاصية &amp;تتبع أخرى</translation>
    </message>
    <message>
        <source>Property that follows another</source>
        <translation>خاصية تتبع أخرى</translation>
    </message>
    <message>
        <source>What it can follow</source>
        <translation>ما يمكن أن تتبعه</translation>
    </message>
</context>
<context>
    <name>ListEditor</name>
    <message>
        <source>Move up</source>
        <translation>نقل إلى الأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل إلى الأسفل</translation>
    </message>
</context>
<context>
    <name>LockPalette</name>
    <message>
        <source>Property Value Editing</source>
        <translation>تحرير القيم</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>القفل</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Selection</source>
        <translation>التحديد</translation>
    </message>
    <message>
        <source>Place of the mouse pointer</source>
        <translation>مكان مؤشر الفأرة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>تعذر فعل ذلك.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;تراجع: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>إ&amp;عادة: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>لا شيء محدد</translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>لا شيء محدد (%Ln)</numerusform>
            <numerusform>واحدة محددة (%Ln)</numerusform>
            <numerusform>اثنتان محددتان (%Ln)</numerusform>
            <numerusform>%Ln محددة</numerusform>
            <numerusform>%Ln محددة</numerusform>
            <numerusform>%Ln محددة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 mm</source>
        <translation>%1، %2 مم</translation>
    </message>
    <message>
        <source>There is no part with the id &quot;%1&quot;.</source>
        <translation>لا توجد قطعة بالمعرّف &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>المحدد: %1</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (مسترجَع)</translation>
    </message>
</context>
<context>
    <name>MessagesPane</name>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>There was no message yet.</source>
        <translation>لم تكن هناك رسالة بعد.</translation>
    </message>
    <message>
        <source>Open &amp;Console Window</source>
        <translation>فتح نافذة الو&amp;حدة الطرفية</translation>
    </message>
</context>
<context>
    <name>ModelsBrowser</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>تصريحات نوع المستند غير مسموح بها</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>إ&amp;ضافة مجلد...</translation>
    </message>
    <message>
        <source>&amp;Remove Folder</source>
        <translation>إ&amp;زالة المجلد</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>Show the documents of one more folder</source>
        <translation>عرض مستندات مجلد آخر</translation>
    </message>
    <message>
        <source>Show the folder no longer; nothing on the disk is touched</source>
        <translation>التوقف عن عرض المجلد؛ لا يتغير شيء على القرص</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>النماذج</translation>
    </message>
    <message>
        <source>No folder yet. Add one to see its documents here.</source>
        <translation>لا مجلد بعد. أضف واحدًا لترى مستنداته هنا.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>إضافة مجلد</translation>
    </message>
</context>
<context>
    <name>ModelsModel</name>
    <message>
        <source>The folder is not there or cannot be read.</source>
        <translation>المجلد غير موجود أو لا يمكن قراءته.</translation>
    </message>
    <message>
        <source>%1 (no documents)</source>
        <translation>%1 (لا مستندات)</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>لا يمكن قراءته: %1</translation>
    </message>
</context>
<context>
    <name>MoveGesture</name>
    <message>
        <source>Move part</source>
        <translation>نقل قطعة</translation>
    </message>
    <message numerus="yes">
        <source>Move %n parts</source>
        <translation>
            <numerusform>لا نقل (%n)</numerusform>
            <numerusform>نقل قطعة واحدة (%n)</numerusform>
            <numerusform>نقل قطعتين (%n)</numerusform>
            <numerusform>نقل %n قطع</numerusform>
            <numerusform>نقل %n قطعة</numerusform>
            <numerusform>نقل %n قطعة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NoSelectionPane</name>
    <message>
        <source>Select a part to see and change its properties.</source>
        <translation>حدد قطعة لترى خصائصها وتغيرها.</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>خصائص المشهد</translation>
    </message>
    <message>
        <source>Shows the properties of the scene on view</source>
        <translation>يعرض خصائص المشهد المعروض</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>عدّل برنامج آخر %1.</translation>
    </message>
    <message>
        <source>Reloading shows what it wrote and loses what you have not saved.</source>
        <translation>إعادة التحميل تعرض ما كتبه وتُفقدك ما لم تحفظه.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>إعادة ال&amp;تحميل</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>حفظ &amp;باسم...</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>الا&amp;حتفاظ بنسختي</translation>
    </message>
    <message>
        <source>%1 was deleted, renamed or moved by another program.</source>
        <translation>حذف برنامج آخر %1 أو غيّر اسمه أو نقله.</translation>
    </message>
    <message>
        <source>What you see is in this window only until it is saved again.</source>
        <translation>ما تراه موجود في هذه النافذة فقط إلى أن يُحفظ من جديد.</translation>
    </message>
    <message>
        <source>Save A&amp;gain</source>
        <translation>حفظ من &amp;جديد</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>ليس ا&amp;لآن</translation>
    </message>
    <message>
        <source>Re&amp;cover</source>
        <translation>ا&amp;سترجاع</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>ت&amp;جاهل</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>لا&amp;حقًا</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>ObserverColorPicker</name>
    <message>
        <source>%1, name of the colour</source>
        <translation>%1، اسم اللون</translation>
    </message>
    <message>
        <source>This names no colour.</source>
        <translation>هذا لا يسمي أي لون.</translation>
    </message>
</context>
<context>
    <name>ObserverComboBox</name>
    <message>
        <source>true</source>
        <translation>صحيح</translation>
    </message>
    <message>
        <source>false</source>
        <translation>خطأ</translation>
    </message>
</context>
<context>
    <name>ObserverLineEdit</name>
    <message>
        <source>This text does not stand for a value of the kind that is needed here.</source>
        <translation>هذا النص لا يمثل قيمة من النوع المطلوب هنا.</translation>
    </message>
</context>
<context>
    <name>ObserverPoint</name>
    <message>
        <source>%1, x</source>
        <translation>%1، س</translation>
    </message>
    <message>
        <source>%1, y</source>
        <translation>%1، ص</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>it differs from &quot;%1&quot; only by its extension</source>
        <translation>لا يختلف عن &quot;%1&quot; إلا في امتداده</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no attribute &quot;%2&quot;</source>
        <translation>ليس لـ &lt;%1&gt; سمة &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand in &lt;%2&gt;</source>
        <translation>لا يمكن لـ &lt;%1&gt; أن يكون داخل &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot have text here</source>
        <translation>لا يمكن أن يكون لـ &lt;%1&gt; نص هنا</translation>
    </message>
    <message>
        <source>the file is larger than 16 MB</source>
        <translation>الملف أكبر من 16 ميغابايت</translation>
    </message>
    <message>
        <source>the elements are nested too deep</source>
        <translation>العناصر متداخلة أعمق من اللازم</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>أنواع المستندات والكيانات غير مفهومة</translation>
    </message>
    <message>
        <source>&lt;%1&gt; needs a key without blanks</source>
        <translation>يحتاج &lt;%1&gt; إلى مفتاح بلا مسافات</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is made by the program itself</source>
        <translation>الخاصية &quot;%1&quot; يصنعها البرنامج نفسه</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of a property</source>
        <translation>&quot;%1&quot; ليس نوع خاصية</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is inherited with the type %2</source>
        <translation>الخاصية &quot;%1&quot; موروثة بالنوع %2</translation>
    </message>
    <message>
        <source>a property has only one &lt;%1&gt;</source>
        <translation>للخاصية &lt;%1&gt; واحد فقط</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is no whole number from %2 on: &quot;%3&quot;</source>
        <translation>السمة &quot;%1&quot; ليست عددًا صحيحًا ابتداء من %2: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is none of %2: &quot;%3&quot;</source>
        <translation>السمة &quot;%1&quot; ليست أيًا من %2: &quot;%3&quot;</translation>
    </message>
    <message>
        <source>there is no resource &quot;%1&quot;</source>
        <translation>لا يوجد مورد &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the resource &quot;%1&quot; is of the type %2, not %3</source>
        <translation>المورد &quot;%1&quot; من النوع %2، وليس %3</translation>
    </message>
    <message>
        <source>values of the type %1 have no unit</source>
        <translation>ليس لقيم النوع %1 وحدة</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>الوحدة &quot;%1&quot; غير معروفة</translation>
    </message>
    <message>
        <source>the flag &quot;%1&quot; is not known</source>
        <translation>العلامة &quot;%1&quot; غير معروفة</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>&quot;%1&quot; ليست قيمة من النوع %2</translation>
    </message>
    <message>
        <source>a value of the type %1 is a text</source>
        <translation>قيمة النوع %1 نص</translation>
    </message>
    <message>
        <source>the content is no value of the type %1</source>
        <translation>المحتوى ليس قيمة من النوع %1</translation>
    </message>
    <message>
        <source>the property has a default already</source>
        <translation>للخاصية قيمة افتراضية بالفعل</translation>
    </message>
    <message>
        <source>a default of the type %1 stands in an element &lt;default&gt;</source>
        <translation>القيمة الافتراضية من النوع %1 تكون في عنصر &lt;default&gt;</translation>
    </message>
    <message>
        <source>values of the type %1 have no format</source>
        <translation>ليس لقيم النوع %1 تنسيق</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not measure the same as &quot;%2&quot;</source>
        <translation>الوحدة &quot;%1&quot; لا تقيس ما تقيسه &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a validator needs a kind</source>
        <translation>تحتاج قاعدة التحقق إلى نوع</translation>
    </message>
    <message>
        <source>values of the type %1 have no range</source>
        <translation>ليس لقيم النوع %1 مجال</translation>
    </message>
    <message>
        <source>the minimum %1 is greater than the maximum %2</source>
        <translation>الحد الأدنى %1 أكبر من الحد الأقصى %2</translation>
    </message>
    <message>
        <source>values of the type %1 cannot be chosen from a set</source>
        <translation>قيم النوع %1 لا يمكن اختيارها من مجموعة</translation>
    </message>
    <message>
        <source>the set is empty</source>
        <translation>المجموعة فارغة</translation>
    </message>
    <message>
        <source>only texts have a pattern</source>
        <translation>للنصوص وحدها نمط</translation>
    </message>
    <message>
        <source>the expression &quot;%1&quot; is faulty: %2</source>
        <translation>التعبير &quot;%1&quot; غير صحيح: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>إنه فارغ</translation>
    </message>
    <message>
        <source>only resources are chosen from resources</source>
        <translation>الموارد وحدها تُختار من موارد</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; does not allow the value &quot;%2&quot;</source>
        <translation>الخاصية &quot;%1&quot; لا تسمح بالقيمة &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>لا يمكن قراءة الملف: %1</translation>
    </message>
    <message>
        <source>this is no package but &lt;%1&gt;</source>
        <translation>هذه ليست حزمة بل &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the attribute &quot;format&quot; is missing</source>
        <translation>السمة &quot;format&quot; مفقودة</translation>
    </message>
    <message>
        <source>the package has the format %1, this program understands %2</source>
        <translation>تنسيق الحزمة %1، وهذا البرنامج يفهم %2</translation>
    </message>
    <message>
        <source>a package needs a name of letters, digits, &apos;-&apos; and &apos;_&apos;</source>
        <translation>تحتاج الحزمة إلى اسم من حروف وأرقام و&apos;-&apos; و&apos;_&apos;</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; must stand in a folder of that name</source>
        <translation>يجب أن تكون الحزمة &quot;%1&quot; في مجلد بهذا الاسم</translation>
    </message>
    <message>
        <source>no package can have the name &quot;%1&quot;</source>
        <translation>لا يمكن لأي حزمة أن تحمل الاسم &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no class id such as &quot;electronics/led&quot;</source>
        <translation>&quot;%1&quot; ليس معرّف صنف مثل &quot;electronics/led&quot;</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; is defined twice</source>
        <translation>الصنف &quot;%1&quot; معرّف مرتين</translation>
    </message>
    <message>
        <source>another package defines the class &quot;%1&quot;</source>
        <translation>حزمة أخرى تعرّف الصنف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no class %1</source>
        <translation>لا يوجد صنف %1</translation>
    </message>
    <message>
        <source>the class %1 needs itself as a base or subpart</source>
        <translation>يحتاج الصنف %1 إلى نفسه كأساس أو قطعة فرعية</translation>
    </message>
    <message>
        <source>the classes are nested too deep</source>
        <translation>الأصناف متداخلة أعمق من اللازم</translation>
    </message>
    <message>
        <source>a class has at most %1 properties, values, forms, substitutions, subparts, rules and bases, with those of its bases</source>
        <translation>للصنف %1 على الأكثر من الخصائص والقيم والنماذج والبدائل والقطع الفرعية والقواعد والأصناف الأساسية، مع ما لأصنافه الأساسية</translation>
    </message>
    <message>
        <source>the classes of a package have at most %1 properties, subparts and so on together</source>
        <translation>لأصناف الحزمة معًا %1 على الأكثر من الخصائص والقطع الفرعية وما شابهها</translation>
    </message>
    <message>
        <source>a part of the class would have more than %1 subparts</source>
        <translation>ستكون لقطعة من هذا الصنف أكثر من %1 قطعة فرعية</translation>
    </message>
    <message>
        <source>a part of the class would have subparts more than %1 deep in one another</source>
        <translation>ستكون لقطعة من هذا الصنف قطع فرعية متداخلة أعمق من %1 مستوى</translation>
    </message>
    <message>
        <source>a class without a base needs a kind</source>
        <translation>يحتاج الصنف بلا أساس إلى نوع</translation>
    </message>
    <message>
        <source>the base %1 is of another kind</source>
        <translation>الأساس %1 من نوع آخر</translation>
    </message>
    <message>
        <source>domains have ids such as &quot;electronics/*&quot;, other classes have not</source>
        <translation>للمجالات معرّفات مثل &quot;electronics/*&quot;، وليس للأصناف الأخرى</translation>
    </message>
    <message>
        <source>the class %1 is no pop-up</source>
        <translation>الصنف %1 ليس نافذة منبثقة</translation>
    </message>
    <message>
        <source>only parts have a pop-up</source>
        <translation>للقطع وحدها نافذة منبثقة</translation>
    </message>
    <message>
        <source>a class without a pop-up cannot show its pane</source>
        <translation>صنف بلا نافذة منبثقة لا يمكنه عرض لوحها</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is given twice</source>
        <translation>الخاصية &quot;%1&quot; معطاة مرتين</translation>
    </message>
    <message>
        <source>no base of the class has the property &quot;%1&quot;</source>
        <translation>ليس لأي أساس للصنف الخاصية &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the name of the form is missing</source>
        <translation>اسم النموذج مفقود</translation>
    </message>
    <message>
        <source>a substitution needs a string and either a resource or a text</source>
        <translation>يحتاج الاستبدال إلى سلسلة وإما إلى مورد أو إلى نص</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is substituted twice</source>
        <translation>&quot;%1&quot; مستبدل مرتين</translation>
    </message>
    <message>
        <source>only parts and subparts have subparts</source>
        <translation>للقطع والقطع الفرعية وحدها قطع فرعية</translation>
    </message>
    <message>
        <source>there are two rules for the same role</source>
        <translation>توجد قاعدتان للدور نفسه</translation>
    </message>
    <message>
        <source>the class of the subpart is missing</source>
        <translation>صنف القطعة الفرعية مفقود</translation>
    </message>
    <message>
        <source>no subpart can be of the class %1</source>
        <translation>لا يمكن لقطعة فرعية أن تكون من الصنف %1</translation>
    </message>
    <message>
        <source>the class %1 has no property &quot;%2&quot;</source>
        <translation>ليس للصنف %1 خاصية &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a rule for subparts needs one role</source>
        <translation>تحتاج قاعدة القطع الفرعية إلى دور واحد</translation>
    </message>
    <message>
        <source>there is no class &quot;%1&quot;</source>
        <translation>لا يوجد صنف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a package &quot;%1&quot; already</source>
        <translation>توجد حزمة &quot;%1&quot; بالفعل</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>لا يمكن كتابة %1: %2</translation>
    </message>
    <message>
        <source>the class belongs to no domain</source>
        <translation>الصنف لا ينتمي إلى أي مجال</translation>
    </message>
    <message>
        <source>there is a class &quot;%1&quot; already</source>
        <translation>يوجد صنف &quot;%1&quot; بالفعل</translation>
    </message>
    <message>
        <source>the packages &quot;%1&quot; and &quot;%2&quot; would need each other</source>
        <translation>ستحتاج الحزمتان &quot;%1&quot; و&quot;%2&quot; إحداهما إلى الأخرى</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>لا يمكن إنشاء المجلد %1</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; is not the user&apos;s</source>
        <translation>الحزمة &quot;%1&quot; ليست حزمة المستخدم</translation>
    </message>
</context>
<context>
    <name>PackageCheck</name>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>لا يمكن قراءة الملف: %1</translation>
    </message>
    <message>
        <source>the extension stands for no kind of resource: the file is never used</source>
        <translation>الامتداد لا يدل على أي نوع من الموارد: لا يُستعمل الملف أبدًا</translation>
    </message>
    <message>
        <source>nothing names the file</source>
        <translation>لا شيء يذكر الملف</translation>
    </message>
</context>
<context>
    <name>PageSetupDialog</name>
    <message>
        <source>Page Setup</source>
        <translation>إعداد الصفحة</translation>
    </message>
    <message>
        <source>&amp;Margins (mm):</source>
        <translation>اله&amp;وامش (مم):</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Page &amp;Size:</source>
        <translation>&amp;حجم الصفحة:</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>ا&amp;تجاه الصفحة:</translation>
    </message>
    <message>
        <source>Scale to Page &amp;Width:</source>
        <translation>ملاءمة &amp;عرض الصفحة:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale &amp;Factor:</source>
        <translation>معامل الت&amp;كبير:</translation>
    </message>
    <message>
        <source>The first page with its margins</source>
        <translation>الصفحة الأولى بهوامشها</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;موافق</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
    <message>
        <source>%1 margin in millimetres</source>
        <translation>الهامش: %1، بالمليمتر</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>طولي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>عرضي</translation>
    </message>
    <message>
        <source>A0 (841 x 1189 mm)</source>
        <translation>A0 (841 x 1189 مم)</translation>
    </message>
    <message>
        <source>A1 (594 x 841 mm)</source>
        <translation>A1 (594 x 841 مم)</translation>
    </message>
    <message>
        <source>A2 (420 x 594 mm)</source>
        <translation>A2 (420 x 594 مم)</translation>
    </message>
    <message>
        <source>A3 (297 x 420 mm)</source>
        <translation>A3 (297 x 420 مم)</translation>
    </message>
    <message>
        <source>A4 (210 x 297 mm)</source>
        <translation>A4 (210 x 297 مم)</translation>
    </message>
    <message>
        <source>A5 (148 x 210 mm)</source>
        <translation>A5 (148 x 210 مم)</translation>
    </message>
    <message>
        <source>A6 (105 x 148 mm)</source>
        <translation>A6 (105 x 148 مم)</translation>
    </message>
    <message>
        <source>A7 (74 x 105 mm)</source>
        <translation>A7 (74 x 105 مم)</translation>
    </message>
    <message>
        <source>A8 (52 x 74 mm)</source>
        <translation>A8 (52 x 74 مم)</translation>
    </message>
    <message>
        <source>A9 (37 x 52 mm)</source>
        <translation>A9 (37 x 52 مم)</translation>
    </message>
    <message>
        <source>B0 (1000 x 1414 mm)</source>
        <translation>B0 (1000 x 1414 مم)</translation>
    </message>
    <message>
        <source>B1 (707 x 1000 mm)</source>
        <translation>B1 (707 x 1000 مم)</translation>
    </message>
    <message>
        <source>B2 (500 x 707 mm)</source>
        <translation>B2 (500 x 707 مم)</translation>
    </message>
    <message>
        <source>B3 (353 x 500 mm)</source>
        <translation>B3 (353 x 500 مم)</translation>
    </message>
    <message>
        <source>B4 (250 x 353 mm)</source>
        <translation>B4 (250 x 353 مم)</translation>
    </message>
    <message>
        <source>B5 (176 x 250 mm)</source>
        <translation>B5 (176 x 250 مم)</translation>
    </message>
    <message>
        <source>B6 (125 x 176 mm)</source>
        <translation>B6 (125 x 176 مم)</translation>
    </message>
    <message>
        <source>B7 (88 x 125 mm)</source>
        <translation>B7 (88 x 125 مم)</translation>
    </message>
    <message>
        <source>B8 (62 x 88 mm)</source>
        <translation>B8 (62 x 88 مم)</translation>
    </message>
    <message>
        <source>B9 (44 x 62 mm)</source>
        <translation>B9 (44 x 62 مم)</translation>
    </message>
    <message>
        <source>B10 (31 x 44 mm)</source>
        <translation>B10 (31 x 44 مم)</translation>
    </message>
    <message>
        <source>C5E (163 x 229 mm)</source>
        <translation>C5E (163 x 229 مم)</translation>
    </message>
    <message>
        <source>DLE (110 x 220 mm)</source>
        <translation>DLE (110 x 220 مم)</translation>
    </message>
    <message>
        <source>Executive (191 x 254 mm)</source>
        <translation>Executive (191 x 254 مم)</translation>
    </message>
    <message>
        <source>Folio (210 x 330 mm)</source>
        <translation>Folio (210 x 330 مم)</translation>
    </message>
    <message>
        <source>Ledger (432 x 279 mm)</source>
        <translation>Ledger (432 x 279 مم)</translation>
    </message>
    <message>
        <source>Legal (216 x 356 mm)</source>
        <translation>Legal (216 x 356 مم)</translation>
    </message>
    <message>
        <source>Letter (216 x 279 mm)</source>
        <translation>Letter (216 x 279 مم)</translation>
    </message>
    <message>
        <source>Tabloid (279 x 432 mm)</source>
        <translation>Tabloid (279 x 432 مم)</translation>
    </message>
    <message>
        <source>Envelope #10 (105 x 241 mm)</source>
        <translation>ظرف #10 (105 x 241 مم)</translation>
    </message>
</context>
<context>
    <name>PaletteBoxSection</name>
    <message>
        <source>Section</source>
        <translation>قسم</translation>
    </message>
</context>
<context>
    <name>PaletteButtonBar</name>
    <message>
        <source>expanded</source>
        <translation>مبسوط</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>مطوي</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>Side Pane</source>
        <translation>اللوح الجانبي</translation>
    </message>
    <message>
        <source>I&amp;nspector...</source>
        <translation>المفت&amp;ش...</translation>
    </message>
    <message>
        <source>Show the tree of everything in the document</source>
        <translation>عرض شجرة كل ما في المستند</translation>
    </message>
</context>
<context>
    <name>PanelTopArea</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى القطعة.</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>لا شيء محدد</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>A number of parts of one kind: &quot;3 × LED&quot;</extracomment>
        <translation>%1 × %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parts</source>
        <translation>
            <numerusform>لا قطع (%Ln)</numerusform>
            <numerusform>قطعة واحدة (%Ln)</numerusform>
            <numerusform>قطعتان (%Ln)</numerusform>
            <numerusform>%Ln قطع</numerusform>
            <numerusform>%Ln قطعة</numerusform>
            <numerusform>%Ln قطعة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartChoiceModel</name>
    <message>
        <source>All parts</source>
        <translation>كل القطع</translation>
    </message>
</context>
<context>
    <name>PartEditor</name>
    <message>
        <source>Select the two parts that it shall connect first.</source>
        <translation>حدد أولًا القطعتين المطلوب وصلهما.</translation>
    </message>
    <message>
        <source>What was dropped is not a part.</source>
        <translation>ما أُسقط ليس قطعة.</translation>
    </message>
</context>
<context>
    <name>PartHelp</name>
    <message>
        <source>Group: %1</source>
        <translation>المجموعة: %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>حول %1</translation>
    </message>
    <message>
        <source>How properties are changed</source>
        <translation>كيفية تغيير الخصائص</translation>
    </message>
</context>
<context>
    <name>PartIdLineEdit</name>
    <message numerus="yes">
        <source>Rename %n parts</source>
        <translation>
            <numerusform>لا إعادة تسمية (%n)</numerusform>
            <numerusform>إعادة تسمية قطعة واحدة (%n)</numerusform>
            <numerusform>إعادة تسمية قطعتين (%n)</numerusform>
            <numerusform>إعادة تسمية %n قطع</numerusform>
            <numerusform>إعادة تسمية %n قطعة</numerusform>
            <numerusform>إعادة تسمية %n قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>There is one number in an id: write # once.</source>
        <translation>في المعرّف رقم واحد: اكتب # مرة واحدة.</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
<context>
    <name>PartsModel</name>
    <message>
        <source>Package: %1</source>
        <translation>الحزمة: %1</translation>
    </message>
    <message>
        <source>Key stage: %1</source>
        <translation>المستوى: %1</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Search parts</source>
        <translation>البحث عن قطع</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>القطع</translation>
    </message>
    <message>
        <source>There are no parts.</source>
        <translation>لا توجد قطع.</translation>
    </message>
    <message>
        <source>No part matches the search.</source>
        <translation>لا قطعة تطابق البحث.</translation>
    </message>
</context>
<context>
    <name>PerfMeter</name>
    <message>
        <source>Performance</source>
        <translation>الأداء</translation>
    </message>
</context>
<context>
    <name>PlusMinusButton</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>As each property says</source>
        <translation>كما تقول كل خاصية</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>مليمترات</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>سنتيمترات</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>بوصات</translation>
    </message>
    <message>
        <source>The crash report only</source>
        <translation>تقرير الانهيار فقط</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>الخرج القياسي</translation>
    </message>
    <message>
        <source>Standard error</source>
        <translation>خرج الأخطاء القياسي</translation>
    </message>
    <message>
        <source>A file (velmor.log)</source>
        <translation>ملف (velmor.log)</translation>
    </message>
    <message>
        <source>A window</source>
        <translation>نافذة</translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation>لا مكان</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>لغة النظام</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>Takes effect when the program starts again.</source>
        <translation>يسري عند تشغيل البرنامج من جديد.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>ال&amp;لغة:</translation>
    </message>
    <message>
        <source>Show lengths &amp;in:</source>
        <translation>عرض الأ&amp;طوال بوحدة:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Steps kept for &amp;undo:</source>
        <translation>خطوات ال&amp;تراجع المحفوظة:</translation>
    </message>
    <message>
        <source>The &amp;wheel zooms scenes (with Ctrl it scrolls them)</source>
        <translation>ع&amp;جلة الفأرة تكبر المشاهد (ومع Ctrl تمررها)</translation>
    </message>
    <message>
        <source>&amp;Messages go to:</source>
        <translation>ال&amp;رسائل تذهب إلى:</translation>
    </message>
    <message>
        <source>The preferences hold until the program ends: they cannot be kept.</source>
        <translation>تبقى التفضيلات حتى ينتهي البرنامج: لا يمكن حفظها.</translation>
    </message>
    <message>
        <source>The language of all texts, and how numbers are written.</source>
        <translation>لغة جميع النصوص وطريقة كتابة الأرقام.</translation>
    </message>
    <message>
        <source>What these settings do</source>
        <translation>ما تفعله هذه الإعدادات</translation>
    </message>
    <message>
        <source>The unit in which fields of lengths begin; each of them offers the others as well.</source>
        <translation>الوحدة التي تبدأ بها حقول الأطوال، ويعرض كل حقل الوحدات الأخرى أيضًا.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>There is nothing to print, or the margins leave no room on the paper.</source>
        <translation>لا يوجد ما يُطبع، أو أن الهوامش لا تترك مكانًا على الورق.</translation>
    </message>
    <message numerus="yes">
        <source>At this scale the document needs %n pages; no more than %1 are exported.</source>
        <translation>
            <numerusform>بهذا المقياس لا يحتاج المستند صفحات (%n)؛ لا يُصدَّر أكثر من %1.</numerusform>
            <numerusform>بهذا المقياس يحتاج المستند صفحة واحدة (%n)؛ لا يُصدَّر أكثر من %1.</numerusform>
            <numerusform>بهذا المقياس يحتاج المستند صفحتين (%n)؛ لا يُصدَّر أكثر من %1.</numerusform>
            <numerusform>بهذا المقياس يحتاج المستند %n صفحات؛ لا يُصدَّر أكثر من %1.</numerusform>
            <numerusform>بهذا المقياس يحتاج المستند %n صفحة؛ لا يُصدَّر أكثر من %1.</numerusform>
            <numerusform>بهذا المقياس يحتاج المستند %n صفحة؛ لا يُصدَّر أكثر من %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>لا يمكن كتابة %1: %2</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>تعذرت طباعة المستند.</translation>
    </message>
    <message>
        <source>The printer did not take the pages.</source>
        <translation>لم تقبل الطابعة الصفحات.</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>تصدير إلى PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>ملفات PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>صُدِّر %1</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>تعذرت كتابة %1.</translation>
    </message>
    <message>
        <source>Export to SVG</source>
        <translation>تصدير إلى SVG</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>رسوم SVG (*.svg)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
</context>
<context>
    <name>ProductPackage</name>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>النماذج (*.%1)</translation>
    </message>
</context>
<context>
    <name>PropPalette</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>عدة قطع محددة</translation>
    </message>
    <message>
        <source>This part has no properties</source>
        <translation>ليس لهذه القطعة خصائص</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>خصائص المشهد</translation>
    </message>
</context>
<context>
    <name>PropertyChoiceModel</name>
    <message>
        <source>The property is not there any more.</source>
        <translation>لم تعد الخاصية موجودة.</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>القطعة</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>الخاصية</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الارتباط</translation>
    </message>
    <message>
        <source>Can be linked</source>
        <translation>قابلة للربط</translation>
    </message>
    <message>
        <source>Linked</source>
        <translation>مرتبطة</translation>
    </message>
    <message>
        <source>Possible</source>
        <translation>ممكن</translation>
    </message>
</context>
<context>
    <name>PropertyFilter</name>
    <message>
        <source>One of the properties is gone.</source>
        <translation>لم تعد إحدى الخاصيتين موجودة.</translation>
    </message>
    <message>
        <source>A property cannot follow itself.</source>
        <translation>لا يمكن للخاصية أن تتبع نفسها.</translation>
    </message>
    <message>
        <source>The properties belong to different documents.</source>
        <translation>الخاصيتان تنتميان إلى مستندين مختلفين.</translation>
    </message>
    <message>
        <source>This property cannot be followed.</source>
        <translation>لا يمكن تتبع هذه الخاصية.</translation>
    </message>
    <message>
        <source>The property is of another type.</source>
        <translation>الخاصية من نوع آخر.</translation>
    </message>
    <message>
        <source>The property follows this one already.</source>
        <translation>الخاصية تتبع هذه بالفعل.</translation>
    </message>
</context>
<context>
    <name>PropertyListBox</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>البحث عن خاصية</translation>
    </message>
    <message>
        <source>Part whose properties are listed</source>
        <translation>القطعة التي تُسرد خصائصها</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الارتباط</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>فصل</translation>
    </message>
    <message>
        <source>Follows %1: %2</source>
        <translation>تتبع %1: %2</translation>
    </message>
    <message>
        <source>Nothing is found that could be followed.</source>
        <translation>لم يُعثر على شيء يمكن تتبعه.</translation>
    </message>
    <message>
        <source>The selected parts do not follow the same.</source>
        <translation>القطع المحددة لا تتبع الشيء نفسه.</translation>
    </message>
</context>
<context>
    <name>PropertyTable</name>
    <message>
        <source>Filter properties</source>
        <translation>ترشيح الخصائص</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>نسخ ال&amp;كل</translation>
    </message>
</context>
<context>
    <name>PropertyTableModel</name>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>العلامات</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>تتبع</translation>
    </message>
</context>
<context>
    <name>ProxyCommands</name>
    <message>
        <source>Link of %1</source>
        <translation>ربط %1</translation>
    </message>
    <message>
        <source>One of the properties is not there any more.</source>
        <translation>لم تعد إحدى الخاصيتين موجودة.</translation>
    </message>
    <message>
        <source>A property that the program works out cannot follow another.</source>
        <translation>الخاصية التي يحسبها البرنامج لا يمكنها أن تتبع غيرها.</translation>
    </message>
    <message>
        <source>Detaching of %1</source>
        <translation>فصل %1</translation>
    </message>
    <message>
        <source>The property is not there any more.</source>
        <translation>لم تعد الخاصية موجودة.</translation>
    </message>
</context>
<context>
    <name>QXmlStream</name>
    <message>
        <source>Encountered incorrectly encoded content.</source>
        <translation>صودف محتوى بترميز غير صحيح.</translation>
    </message>
</context>
<context>
    <name>QtColorPicker</name>
    <message>
        <source>Different colours</source>
        <translation>ألوان مختلفة</translation>
    </message>
</context>
<context>
    <name>ReaderActions</name>
    <message>
        <source>The link &quot;%1&quot; cannot be opened.</source>
        <translation>لا يمكن فتح الرابط &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No recent files</source>
        <translation>لا ملفات أخيرة</translation>
    </message>
</context>
<context>
    <name>RecoveryOffers</name>
    <message>
        <source>What was kept of a document cannot be read.</source>
        <translation>لا يمكن قراءة ما احتُفظ به من مستند.</translation>
    </message>
    <message>
        <source>A document that was never saved can be recovered.</source>
        <translation>يمكن استرجاع مستند لم يُحفظ قط.</translation>
    </message>
    <message>
        <source>Changes to %1 that were not saved can be recovered.</source>
        <translation>يمكن استرجاع تعديلات على %1 لم تُحفظ.</translation>
    </message>
    <message>
        <source>The damaged file is %1.</source>
        <translation>الملف التالف هو %1.</translation>
    </message>
    <message>
        <source>Last saved: %1.</source>
        <translation>آخر حفظ: %1.</translation>
    </message>
    <message>
        <source>Last kept: %1.</source>
        <translation>آخر نسخة محتفظ بها: %1.</translation>
    </message>
    <message>
        <source>The file itself is not there any more.</source>
        <translation>الملف نفسه لم يعد موجودًا.</translation>
    </message>
    <message>
        <source>The file itself is newer: it was changed on %1.</source>
        <translation>الملف نفسه أحدث: عُدّل في %1.</translation>
    </message>
    <message>
        <source>The file itself was changed since, on %1.</source>
        <translation>عُدّل الملف نفسه منذ ذلك الحين، في %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryPlace</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>لا يمكن الكتابة في المجلد %1.</translation>
    </message>
</context>
<context>
    <name>ReflectCommand</name>
    <message>
        <source>Reflection</source>
        <translation>انعكاس</translation>
    </message>
    <message>
        <source>Removal of a reflection</source>
        <translation>إزالة انعكاس</translation>
    </message>
    <message>
        <source>There is no such part, or no place for the reflection.</source>
        <translation>لا توجد قطعة كهذه، أو لا مكان للانعكاس.</translation>
    </message>
    <message>
        <source>A reflection stands in a scene or a pop-up.</source>
        <translation>يكون الانعكاس في مشهد أو نافذة منبثقة.</translation>
    </message>
    <message>
        <source>There is no such reflection.</source>
        <translation>لا يوجد انعكاس كهذا.</translation>
    </message>
    <message>
        <source>The part has nothing of the kind to reflect.</source>
        <translation>ليس للقطعة شيء من هذا النوع يُعكس.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>أحد أرقام النسخ مستخدم بالفعل.</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>لم تبقَ في المستند معرّفات مثيلات لكائنات جديدة.</translation>
    </message>
</context>
<context>
    <name>ReflectMenu</name>
    <message>
        <source>&amp;Controls</source>
        <translation>&amp;عناصر التحكم</translation>
    </message>
    <message>
        <source>&amp;Pads</source>
        <translation>&amp;نقاط اللحام</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>ال&amp;جسم</translation>
    </message>
</context>
<context>
    <name>RemoveResourceCommand</name>
    <message>
        <source>Removal of %1</source>
        <translation>إزالة %1</translation>
    </message>
</context>
<context>
    <name>Resource</name>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>أفلام</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>أصوات</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>نصوص</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>بيانات</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>برامج نصية</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>خطوط</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>نماذج تحرير</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
</context>
<context>
    <name>ResourceChooser</name>
    <message>
        <source>Import a file</source>
        <translation>استيراد ملف</translation>
    </message>
    <message>
        <source>Export to a file</source>
        <translation>تصدير إلى ملف</translation>
    </message>
    <message>
        <source>No resource</source>
        <translation>لا مورد</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>مختلفة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>مفقود</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>معاينة: %1</translation>
    </message>
    <message>
        <source>Only one file can be taken here.</source>
        <translation>لا يمكن أخذ أكثر من ملف واحد هنا.</translation>
    </message>
</context>
<context>
    <name>ResourceImport</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>لا يوجد ملف &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>&quot;%1&quot; مجلد.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>لا يمكن قراءة الملف &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 64 MB.</source>
        <translation>الملف &quot;%1&quot; أكبر من 64 ميغابايت.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be used here: it does not hold data of the kind &quot;%2&quot;.</source>
        <translation>لا يمكن استخدام الملف &quot;%1&quot; هنا: لا يحتوي على بيانات من النوع &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Reading files...</source>
        <translation>تُقرأ الملفات...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>لا يمكن كتابة الملف &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a channel to another program, not a file.</source>
        <translation>&quot;%1&quot; جهاز أو قناة إلى برنامج آخر، وليس ملفًا.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>الملف &quot;%1&quot; فارغ.</translation>
    </message>
</context>
<context>
    <name>ResourceListBox</name>
    <message>
        <source>Add files</source>
        <translation>إضافة ملفات</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>معاينة: %1</translation>
    </message>
    <message>
        <source>The selected parts have different lists. What is added becomes the list of all.</source>
        <translation>للقطع المحددة قوائم مختلفة. ما يُضاف يصبح قائمة الجميع.</translation>
    </message>
</context>
<context>
    <name>ResourceModel</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 مفقود</translation>
    </message>
</context>
<context>
    <name>ResourceRename</name>
    <message>
        <source>The name must not be empty.</source>
        <translation>يجب ألا يكون الاسم فارغًا.</translation>
    </message>
    <message>
        <source>The name must not contain a slash.</source>
        <translation>يجب ألا يحتوي الاسم على شرطة مائلة.</translation>
    </message>
    <message>
        <source>Another resource has this name.</source>
        <translation>لمورد آخر هذا الاسم.</translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>Scene %1</source>
        <translation>المشهد %1</translation>
    </message>
    <message>
        <source>Arrow keys move the selected parts by one millimetre, with Shift by ten.</source>
        <translation>مفاتيح الأسهم تنقل القطع المحددة مليمترًا واحدًا، ومع Shift عشرة.</translation>
    </message>
</context>
<context>
    <name>SelectAllCommand</name>
    <message>
        <source>Selection of everything</source>
        <translation>تحديد كل شيء</translation>
    </message>
    <message>
        <source>The scene is not there any more.</source>
        <translation>لم يعد المشهد موجودًا.</translation>
    </message>
</context>
<context>
    <name>SetNodeIndexCommand</name>
    <message>
        <source>Change of order</source>
        <translation>تغيير الترتيب</translation>
    </message>
    <message>
        <source>There is no such object to move.</source>
        <translation>لا يوجد كائن كهذا يُنقل.</translation>
    </message>
</context>
<context>
    <name>SetUILockedCommand</name>
    <message numerus="yes">
        <source>Locking of %n object(s)</source>
        <translation>
            <numerusform>لا قفل (%n)</numerusform>
            <numerusform>قفل كائن واحد (%n)</numerusform>
            <numerusform>قفل كائنين (%n)</numerusform>
            <numerusform>قفل %n كائنات</numerusform>
            <numerusform>قفل %n كائنًا</numerusform>
            <numerusform>قفل %n كائن</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking of %n object(s)</source>
        <translation>
            <numerusform>لا فتح قفل (%n)</numerusform>
            <numerusform>فتح قفل كائن واحد (%n)</numerusform>
            <numerusform>فتح قفل كائنين (%n)</numerusform>
            <numerusform>فتح قفل %n كائنات</numerusform>
            <numerusform>فتح قفل %n كائنًا</numerusform>
            <numerusform>فتح قفل %n كائن</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message>
        <source>Change of %1</source>
        <translation>تغيير %1</translation>
    </message>
    <message numerus="yes">
        <source>Change of %1 (%n objects)</source>
        <translation>
            <numerusform>تغيير %1 (لا كائنات: %n)</numerusform>
            <numerusform>تغيير %1 (كائن واحد: %n)</numerusform>
            <numerusform>تغيير %1 (كائنان: %n)</numerusform>
            <numerusform>تغيير %1 (%n كائنات)</numerusform>
            <numerusform>تغيير %1 (%n كائنًا)</numerusform>
            <numerusform>تغيير %1 (%n كائن)</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>لم يعد الكائن موجودًا.</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;.</source>
        <translation>لا توجد خاصية &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is worked out by the program and cannot be set.</source>
        <translation>الخاصية &quot;%1&quot; يحسبها البرنامج ولا يمكن ضبطها.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; follows another one and cannot be set.</source>
        <translation>الخاصية &quot;%1&quot; تتبع أخرى ولا يمكن ضبطها.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot hold a value of the type %2.</source>
        <translation>الخاصية &quot;%1&quot; لا يمكن أن تحمل قيمة من النوع %2.</translation>
    </message>
</context>
<context>
    <name>ShortcutButton</name>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Deletes what is selected</source>
        <translation>يحذف ما هو محدد</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>مضاعفة</translation>
    </message>
    <message>
        <source>Adds a copy of what is selected</source>
        <translation>يضيف نسخة مما هو محدد</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>قفل</translation>
    </message>
    <message>
        <source>Keeps what is selected from being changed</source>
        <translation>يحمي ما هو محدد من التغيير</translation>
    </message>
    <message>
        <source>Reflect</source>
        <translation>عكس</translation>
    </message>
    <message>
        <source>Shows the part in another place as well</source>
        <translation>يعرض القطعة في مكان آخر أيضًا</translation>
    </message>
    <message>
        <source>Show Pop-up</source>
        <translation>عرض النافذة المنبثقة</translation>
    </message>
    <message>
        <source>Opens the pop-up of the part</source>
        <translation>يفتح النافذة المنبثقة للقطعة</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Tells more about what is selected</source>
        <translation>يخبر المزيد عما هو محدد</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ShowPopupCommand</name>
    <message>
        <source>Showing of a pop-up</source>
        <translation>عرض نافذة منبثقة</translation>
    </message>
    <message>
        <source>Hiding of a pop-up</source>
        <translation>إخفاء نافذة منبثقة</translation>
    </message>
    <message>
        <source>The part has no pop-up.</source>
        <translation>ليس للقطعة نافذة منبثقة.</translation>
    </message>
</context>
<context>
    <name>SidePane</name>
    <message>
        <source>Side Pane</source>
        <translation>اللوح الجانبي</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>النماذج</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>القطع</translation>
    </message>
</context>
<context>
    <name>SpacePropertyPane</name>
    <message>
        <source>This scene has no properties</source>
        <translation>ليس لهذا المشهد خصائص</translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Scenes and pop-ups</source>
        <translation>المشاهد والنوافذ المنبثقة</translation>
    </message>
    <message>
        <source>Po&amp;p-ups</source>
        <translation>النوافذ المن&amp;بثقة</translation>
    </message>
    <message>
        <source>Open the pop-up of a part</source>
        <translation>فتح النافذة المنبثقة لقطعة</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No part here has a pop-up</source>
        <translation>لا قطعة هنا لها نافذة منبثقة</translation>
    </message>
    <message>
        <source>Double-click a part to open others</source>
        <translation>انقر قطعة نقرًا مزدوجًا لفتح أخرى</translation>
    </message>
</context>
<context>
    <name>StartOptions</name>
    <message>
        <source>Shows and edits interactive teaching models.</source>
        <translation>يعرض النماذج التعليمية التفاعلية ويحررها.</translation>
    </message>
    <message>
        <source>Where messages go: stdout, stderr, file (velmor.log in the current folder), console (a window) or none.</source>
        <translation>إلى أين تذهب الرسائل: stdout أو stderr أو file (velmor.log في المجلد الحالي) أو console (نافذة) أو none.</translation>
    </message>
    <message>
        <source>Write a picture of the main window into a PNG file and quit.</source>
        <translation>كتابة صورة للنافذة الرئيسية في ملف PNG ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Select the part with this id for the picture. May be given several times.</source>
        <translation>تحديد القطعة ذات هذا المعرّف من أجل الصورة. يمكن إعطاؤه عدة مرات.</translation>
    </message>
    <message>
        <source>Let the picture show the forms of what is selected from top to bottom, alone.</source>
        <translation>جعل الصورة تعرض نماذج تحرير ما هو محدد وحدها، من أعلى إلى أسفل.</translation>
    </message>
    <message>
        <source>The document to open.</source>
        <translation>المستند المطلوب فتحه.</translation>
    </message>
    <message>
        <source>--log takes stdout, stderr, file, console or none, not &quot;%1&quot;.</source>
        <translation>يقبل --log القيم stdout أو stderr أو file أو console أو none، وليس &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>يحتاج --screenshot إلى اسم ملف.</translation>
    </message>
    <message>
        <source>--%1 only works together with --screenshot.</source>
        <translation>لا يعمل --%1 إلا مع --screenshot.</translation>
    </message>
    <message>
        <source>The language of this run, such as de or fr_FR.</source>
        <translation>لغة هذا التشغيل، مثل de أو fr_FR.</translation>
    </message>
    <message numerus="yes">
        <source>Only one document can be opened, but %n were given.</source>
        <translation>
            <numerusform>يمكن فتح مستند واحد فقط، لكن لم يُذكر أي مستند.</numerusform>
            <numerusform>يمكن فتح مستند واحد فقط، وقد ذُكر مستند واحد.</numerusform>
            <numerusform>يمكن فتح مستند واحد فقط، لكن ذُكر مستندان.</numerusform>
            <numerusform>يمكن فتح مستند واحد فقط، لكن ذُكرت %n مستندات.</numerusform>
            <numerusform>يمكن فتح مستند واحد فقط، لكن ذُكر %n مستندًا.</numerusform>
            <numerusform>يمكن فتح مستند واحد فقط، لكن ذُكر %n مستند.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell what is wrong with a form, and quit. The exit code is 0 when nothing is, 1 for errors, 2 when the form cannot be read.</source>
        <translation>ذكر ما هو خاطئ في نموذج ثم الإنهاء. رمز الخروج 0 عندما لا يوجد خطأ، و1 عند وجود أخطاء، و2 عندما لا يمكن قراءة النموذج.</translation>
    </message>
    <message>
        <source>Check the form for this class. May be given several times. Without it, the form is checked for the classes that name it.</source>
        <translation>فحص النموذج لهذه الفئة. يمكن ذكره عدة مرات. من دونه يُفحص النموذج للفئات التي تذكره.</translation>
    </message>
    <message>
        <source>Tell what is wrong with a package folder and its forms, and quit.</source>
        <translation>ذكر ما هو خاطئ في مجلد حزمة ونماذجه ثم الإنهاء.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file or folder.</source>
        <translation>الخيار --%1 يحتاج إلى اسم ملف أو مجلد.</translation>
    </message>
    <message>
        <source>--class only works together with --check-form.</source>
        <translation>لا يعمل ‎--class‎ إلا مع ‎--check-form‎.</translation>
    </message>
    <message>
        <source>--check-form and --check-package cannot be given together.</source>
        <translation>لا يمكن ذكر ‎--check-form‎ و‎--check-package‎ معًا.</translation>
    </message>
    <message>
        <source>Dark colours, whatever those of the desktop are.</source>
        <translation>ألوان داكنة أيًا كانت ألوان سطح المكتب.</translation>
    </message>
    <message>
        <source>Let the picture show the dialog of a menu entry: preferences, page-setup, save-custom-part, licence or about.</source>
        <translation>تُظهر الصورة مربع حوار أحد بنود القائمة: preferences أو page-setup أو save-custom-part أو licence أو about.</translation>
    </message>
    <message>
        <source>Run the flowcharts for so many seconds before the picture.</source>
        <translation>تشغيل المخططات الانسيابية هذا العدد من الثواني قبل الصورة.</translation>
    </message>
    <message>
        <source>--run takes seconds up to %1, not &quot;%2&quot;.</source>
        <translation>يتطلب --run عددًا من الثواني حتى %1، وليس &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Let the picture show a palette alone: lockPalette, assocPalette, advancedPalette, debugPalette or inspector.</source>
        <translation>يُظهر في الصورة لوحة وحدها: lockPalette أو assocPalette أو advancedPalette أو debugPalette أو inspector.</translation>
    </message>
</context>
<context>
    <name>StatisticsPane</name>
    <message>
        <source>Statistics</source>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>الأخير</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>المتوسط</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>الأصغر</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>الأكبر</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>العينات</translation>
    </message>
    <message>
        <source>Curve of the selected statistic</source>
        <translation>منحنى الإحصاء المحدد</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>ت&amp;حديث</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>ت&amp;صفير</translation>
    </message>
    <message>
        <source>Forget all samples</source>
        <translation>نسيان كل العينات</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>SubpartComboBox</name>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Subpart</source>
        <translation>قطعة فرعية</translation>
    </message>
</context>
<context>
    <name>SubpartListView</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>القطع الفرعية</translation>
    </message>
    <message>
        <source>Every part of this kind has this subpart</source>
        <translation>لكل قطعة من هذا النوع هذه القطعة الفرعية</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>إزالة (Del)</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>metres</source>
        <translation>أمتار</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>مليمترات</translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation>سنتيمترات</translation>
    </message>
    <message>
        <source>kilometres</source>
        <translation>كيلومترات</translation>
    </message>
    <message>
        <source>micrometres</source>
        <translation>ميكرومترات</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>بوصات</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>أقدام</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>درجات</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>راديان</translation>
    </message>
    <message>
        <source>ohms</source>
        <translation>أوم</translation>
    </message>
    <message>
        <source>milliohms</source>
        <translation>ملي أوم</translation>
    </message>
    <message>
        <source>kilohms</source>
        <translation>كيلو أوم</translation>
    </message>
    <message>
        <source>megohms</source>
        <translation>ميغا أوم</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>فولت</translation>
    </message>
    <message>
        <source>millivolts</source>
        <translation>ملي فولت</translation>
    </message>
    <message>
        <source>kilovolts</source>
        <translation>كيلو فولت</translation>
    </message>
    <message>
        <source>amperes</source>
        <translation>أمبير</translation>
    </message>
    <message>
        <source>milliamperes</source>
        <translation>ملي أمبير</translation>
    </message>
    <message>
        <source>microamperes</source>
        <translation>ميكرو أمبير</translation>
    </message>
    <message>
        <source>watts</source>
        <translation>واط</translation>
    </message>
    <message>
        <source>milliwatts</source>
        <translation>ملي واط</translation>
    </message>
    <message>
        <source>farads</source>
        <translation>فاراد</translation>
    </message>
    <message>
        <source>microfarads</source>
        <translation>ميكرو فاراد</translation>
    </message>
    <message>
        <source>nanofarads</source>
        <translation>نانو فاراد</translation>
    </message>
    <message>
        <source>picofarads</source>
        <translation>بيكو فاراد</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>ثوانٍ</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>ملي ثوانٍ</translation>
    </message>
    <message>
        <source>microseconds</source>
        <translation>ميكرو ثوانٍ</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>دقائق</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ساعات</translation>
    </message>
    <message>
        <source>hertz</source>
        <translation>هرتز</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>كيلو هرتز</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation>ميغا هرتز</translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation>كيلوغرامات</translation>
    </message>
    <message>
        <source>grams</source>
        <translation>غرامات</translation>
    </message>
    <message>
        <source>newtons</source>
        <translation>نيوتن</translation>
    </message>
    <message>
        <source>joules</source>
        <translation>جول</translation>
    </message>
    <message>
        <source>kelvins</source>
        <translation>كلفن</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <translation>درجات مئوية</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <translation>درجات فهرنهايت</translation>
    </message>
    <message>
        <source>metres per second</source>
        <translation>أمتار في الثانية</translation>
    </message>
    <message>
        <source>revolutions per minute</source>
        <translation>دورات في الدقيقة</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>بالمئة</translation>
    </message>
</context>
<context>
    <name>UnitChooser</name>
    <message>
        <source>Unit of %1</source>
        <translation>وحدة %1</translation>
    </message>
</context>
<context>
    <name>Validator</name>
    <message>
        <source>A value of type %1 is needed.</source>
        <translation>تلزم قيمة من النوع %1.</translation>
    </message>
    <message>
        <source>Only values from %1 to %2 are allowed.</source>
        <translation>لا يُسمح إلا بالقيم من %1 إلى %2.</translation>
    </message>
    <message>
        <source>Only these values are allowed: %1.</source>
        <translation>لا يُسمح إلا بهذه القيم: %1.</translation>
    </message>
    <message>
        <source>Only finite numbers are allowed.</source>
        <translation>لا يُسمح إلا بأعداد منتهية.</translation>
    </message>
    <message>
        <source>Only values from %1 upwards are allowed.</source>
        <translation>لا يُسمح إلا بالقيم من %1 فما فوق.</translation>
    </message>
    <message>
        <source>Only values up to %1 are allowed.</source>
        <translation>لا يُسمح إلا بالقيم حتى %1.</translation>
    </message>
    <message>
        <source>The text does not have the form that is needed here.</source>
        <translation>ليس للنص الشكل المطلوب هنا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the resources offered here.</source>
        <translation>&quot;%1&quot; ليس أحد الموارد المعروضة هنا.</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>true</source>
        <translation>صحيح</translation>
    </message>
    <message>
        <source>false</source>
        <translation>خطأ</translation>
    </message>
</context>
<context>
    <name>ValueMapListBox</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>key</source>
        <translation>مفتاح</translation>
    </message>
    <message>
        <source>The key must not be empty.</source>
        <translation>يجب ألا يكون المفتاح فارغًا.</translation>
    </message>
    <message>
        <source>This text does not stand for a value of the kind &quot;%1&quot;.</source>
        <translation>هذا النص لا يمثل قيمة من النوع &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>الفرز حسب هذا العمود</translation>
    </message>
    <message>
        <source>The selected parts have different entries. What is added becomes the entries of all.</source>
        <translation>للقطع المحددة إدخالات مختلفة. ما يُضاف يصبح إدخالات الجميع.</translation>
    </message>
</context>
<context>
    <name>ValueMapModel</name>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>عدد صحيح</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>نعم أو لا</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
</context>
<context>
    <name>ValueXml</name>
    <message>
        <source>The value is nested too deeply.</source>
        <translation>القيمة متداخلة أعمق من اللازم.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of type &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; ليست قيمة من النوع &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Element &quot;%1&quot; is not expected; a list holds &quot;item&quot;s.</source>
        <translation>العنصر &quot;%1&quot; غير متوقع؛ القائمة تحتوي على &quot;item&quot;.</translation>
    </message>
    <message>
        <source>Text is not expected between &quot;item&quot;s.</source>
        <translation>لا يُتوقع نص بين عناصر &quot;item&quot;.</translation>
    </message>
    <message>
        <source>An item cannot have the type &quot;%1&quot; here.</source>
        <translation>لا يمكن أن يكون للعنصر النوع &quot;%1&quot; هنا.</translation>
    </message>
</context>
<context>
    <name>XmlGuard</name>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>في عنصرٍ أكثر من %1 سمة</translation>
    </message>
</context>
<context>
    <name>checkForms</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>لا أخطاء</numerusform>
            <numerusform>خطأ واحد</numerusform>
            <numerusform>خطآن</numerusform>
            <numerusform>%n أخطاء</numerusform>
            <numerusform>%n خطأً</numerusform>
            <numerusform>%n خطأ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>لا تحذيرات</numerusform>
            <numerusform>تحذير واحد</numerusform>
            <numerusform>تحذيران</numerusform>
            <numerusform>%n تحذيرات</numerusform>
            <numerusform>%n تحذيرًا</numerusform>
            <numerusform>%n تحذير</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ليس ملفًا.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>لا يمكن قراءة %1: %2</translation>
    </message>
    <message>
        <source>There is no class &quot;%1&quot;.</source>
        <translation>لا توجد فئة &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 is no package: it has no file package.xml.</source>
        <translation>%1 ليس حزمة: لا يوجد فيه الملف package.xml.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Messages - zkauthor</source>
        <translation>الرسائل - zkauthor</translation>
    </message>
    <message>
        <source>zkauthor crashed last time. A report is in the file %1.</source>
        <translation>انهار zkauthor في المرة السابقة. التقرير في الملف %1.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>لا يمكن فتح %1.</translation>
    </message>
</context>
<context>
    <name>screenshot</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>لا يمكن كتابة الصورة %1: %2</translation>
    </message>
    <message>
        <source>There is no dialog &quot;%1&quot; for what is selected.</source>
        <translation>لا يوجد مربع حوار &quot;%1&quot; لما هو محدد.</translation>
    </message>
    <message>
        <source>There is no palette &quot;%1&quot;.</source>
        <translation>لا توجد لوحة «%1».</translation>
    </message>
</context>
</TS>
