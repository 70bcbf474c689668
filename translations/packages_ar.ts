<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>BatteryForm</name>
    <message>
        <source>Battery</source>
        <translation>بطارية</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>جهد البطارية الجديدة.</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>من كم خلية تتكون البطارية.</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>مقاومة البطارية نفسها.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>كيف توصل الأسلاك بالبطارية.</translation>
    </message>
    <message>
        <source>Draws the signs of the poles at the pins.</source>
        <translation>يرسم علامات القطبين عند الأطراف.</translation>
    </message>
    <message>
        <source>Show &amp;plus and minus</source>
        <translation>عرض ال&amp;موجب والسالب</translation>
    </message>
    <message>
        <source>The battery can be charged again.</source>
        <translation>يمكن إعادة شحن البطارية.</translation>
    </message>
    <message>
        <source>Re&amp;chargeable</source>
        <translation>&amp;قابلة للشحن</translation>
    </message>
    <message>
        <source>Case and pins</source>
        <translation>العلبة والأطراف</translation>
    </message>
    <message>
        <source>Shows the cells inside the case.</source>
        <translation>يعرض الخلايا داخل العلبة.</translation>
    </message>
    <message>
        <source>See-&amp;through case</source>
        <translation>علبة &amp;شفافة</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>يكتب اسم كل طرف بجانبه.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>الأ&amp;سماء عند الأطراف</translation>
    </message>
</context>
<context>
    <name>BeltForm</name>
    <message>
        <source>Belt</source>
        <translation>سير</translation>
    </message>
    <message>
        <source>The wheels turn against each other.</source>
        <translation>تدور العجلات في اتجاهين متعاكسين.</translation>
    </message>
    <message>
        <source>&amp;Crossed</source>
        <translation>م&amp;تقاطع</translation>
    </message>
    <message>
        <source>The belt cannot slip.</source>
        <translation>لا يمكن للسير أن ينزلق.</translation>
    </message>
    <message>
        <source>&amp;Toothed</source>
        <translation>م&amp;سنن</translation>
    </message>
    <message>
        <source>A cord does not stretch; otherwise the belt is made of rubber.</source>
        <translation>الحبل لا يتمدد؛ وإلا فالسير من المطاط.</translation>
    </message>
    <message>
        <source>C&amp;ord</source>
        <translation>&amp;حبل</translation>
    </message>
</context>
<context>
    <name>BlockForm</name>
    <message>
        <source>Logic block</source>
        <translation>كتلة منطقية</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>المنطق</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>كيف تحسب الكتلة خرجها من مداخلها.</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>كم يستغرق الخرج ليتبع المداخل.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Turns the output round.</source>
        <translation>يعكس الخرج.</translation>
    </message>
    <message>
        <source>&amp;Inverted output</source>
        <translation>خرج م&amp;عكوس</translation>
    </message>
    <message>
        <source>Draws the truth table below the block.</source>
        <translation>يرسم جدول الصواب تحت الكتلة.</translation>
    </message>
    <message>
        <source>Show the &amp;truth table</source>
        <translation>عرض &amp;جدول الصواب</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>الرسم</translation>
    </message>
    <message>
        <source>Draws the curved shape instead of the box.</source>
        <translation>يرسم الشكل المنحني بدلًا من الصندوق.</translation>
    </message>
    <message>
        <source>&amp;American symbol</source>
        <translation>الرمز الأ&amp;مريكي</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>يكتب اسم كل طرف بجانبه.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>الأ&amp;سماء عند الأطراف</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>جدول الصواب</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>الخرج لكل تركيب من المداخل.</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>الأطراف</translation>
    </message>
    <message>
        <source>The pins of the block. The fields below belong to the selected ones.</source>
        <translation>أطراف الكتلة. الحقول أدناه للأطراف المحددة.</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs to the pin.</source>
        <translation>أي قطب من التغذية يخص الطرف.</translation>
    </message>
    <message>
        <source>Writes the name of the pin beside it.</source>
        <translation>يكتب اسم الطرف بجانبه.</translation>
    </message>
    <message>
        <source>Name beside the pin</source>
        <translation>الاسم بجانب الطرف</translation>
    </message>
    <message>
        <source>Flowchart block</source>
        <translation>كتلة مخطط انسيابي</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>كتلة</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>ملاحظة لقراء المخطط.</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>اللون داخل الكتلة.</translation>
    </message>
    <message>
        <source>Shows where the chart is.</source>
        <translation>يبين أين وصل المخطط.</translation>
    </message>
    <message>
        <source>Lights &amp;up while it runs</source>
        <translation>ت&amp;ضيء أثناء تشغيلها</translation>
    </message>
    <message>
        <source>Writes the remark beside the block.</source>
        <translation>يكتب الملاحظة بجانب الكتلة.</translation>
    </message>
    <message>
        <source>Show the co&amp;mment</source>
        <translation>عرض ال&amp;ملاحظة</translation>
    </message>
    <message>
        <source>The chart halts before this block until it is stepped on.</source>
        <translation>يتوقف المخطط قبل هذه الكتلة حتى يُخطى إليها.</translation>
    </message>
    <message>
        <source>Stops &amp;here</source>
        <translation>يتوقف &amp;هنا</translation>
    </message>
    <message>
        <source>The chart will halt before this block each time. Stop here?</source>
        <translation>سيتوقف المخطط قبل هذه الكتلة كل مرة. هل يتوقف هنا؟</translation>
    </message>
</context>
<context>
    <name>BuzzerForm</name>
    <message>
        <source>Buzzer</source>
        <translation>طنان</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>The buzzer sounds as soon as the model starts.</source>
        <translation>يصدر الطنان صوتًا بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>&amp;Sounds at the start</source>
        <translation>ي&amp;صدر صوتًا عند البداية</translation>
    </message>
    <message>
        <source>The sound goes on and off.</source>
        <translation>الصوت يعمل وينقطع.</translation>
    </message>
    <message>
        <source>&amp;Pulsed</source>
        <translation>م&amp;تقطع</translation>
    </message>
    <message>
        <source>&amp;Loudness:</source>
        <translation>&amp;علو الصوت:</translation>
    </message>
    <message>
        <source>Sounds loudly while pressed in, softly otherwise.</source>
        <translation>يصدر صوتًا عاليًا عند الضغط، وخافتًا بغير ذلك.</translation>
    </message>
    <message>
        <source>Loud</source>
        <translation>عالٍ</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>مدى حدة النغمة.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>الصورة التي تمثل الصوت.</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>صور تُعرض بالتناوب أثناء صوت الطنان.</translation>
    </message>
</context>
<context>
    <name>CamForm</name>
    <message>
        <source>Cam</source>
        <translation>كامة</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>التابع</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>كم تحرك الكامة تابعها.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The follower ends in a roller; otherwise in a flat foot.</source>
        <translation>ينتهي التابع ببكرة؛ وإلا بقدم مسطحة.</translation>
    </message>
    <message>
        <source>&amp;Roller</source>
        <translation>&amp;بكرة</translation>
    </message>
    <message>
        <source>A spring presses the follower on the cam.</source>
        <translation>نابض يضغط التابع على الكامة.</translation>
    </message>
    <message>
        <source>Return &amp;spring</source>
        <translation>&amp;نابض إرجاع</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>الشكل الجانبي</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>محيط الكامة.</translation>
    </message>
</context>
<context>
    <name>CollectionsForm</name>
    <message>
        <source>Collections</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>القطع الفرعية</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>الأطراف</translation>
    </message>
    <message>
        <source>The pins of the part.</source>
        <translation>أطراف القطعة.</translation>
    </message>
    <message>
        <source>The text shown with the selected pin.</source>
        <translation>النص المعروض مع الطرف المحدد.</translation>
    </message>
    <message>
        <source>Whether the selected pin is seen.</source>
        <translation>هل يُرى الطرف المحدد.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>مرئي</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
    <message>
        <source>The control whose place stands below.</source>
        <translation>عنصر التحكم الذي مكانه أدناه.</translation>
    </message>
    <message>
        <source>Where the chosen control is.</source>
        <translation>أين عنصر التحكم المختار.</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>الموارد</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>صورة واحدة.</translation>
    </message>
    <message>
        <source>One of a few resources.</source>
        <translation>واحد من بضعة موارد.</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>أي عدد من الصور.</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>القيم</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>مفاتيح وقيم.</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>خط نص.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>الارتباطات</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>عدد يمكنه أن يتبع آخر.</translation>
    </message>
    <message>
        <source>What the level can follow.</source>
        <translation>ما يمكن للمستوى أن يتبعه.</translation>
    </message>
</context>
<context>
    <name>ComponentForm</name>
    <message>
        <source>Component</source>
        <translation>مكوّن</translation>
    </message>
    <message>
        <source>Label and state</source>
        <translation>العنوان والحالة</translation>
    </message>
    <message>
        <source>Letters and a number, for example R1.</source>
        <translation>حروف ورقم، مثل R1.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the part; empty when none does.</source>
        <translation>الاسم الذي تبدّل به المخططات القطعة؛ فارغ حين لا يفعل أي منها.</translation>
    </message>
    <message>
        <source>Written beside the part</source>
        <translation>مكتوب بجانب القطعة</translation>
    </message>
    <message>
        <source>Writes the reference, such as R1, beside the part.</source>
        <translation>يكتب المرجع، مثل R1، بجانب القطعة.</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>ال&amp;مرجع</translation>
    </message>
    <message>
        <source>Writes the main value, such as 330 Ω, beside the part.</source>
        <translation>يكتب القيمة الرئيسية، مثل 330 Ω، بجانب القطعة.</translation>
    </message>
    <message>
        <source>Val&amp;ue</source>
        <translation>ال&amp;قيمة</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the part.</source>
        <translation>أين يكون العنوان، كما يُرى من القطعة.</translation>
    </message>
    <message>
        <source>Place of the label</source>
        <translation>مكان العنوان</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>فوق</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>تحت</translation>
    </message>
    <message>
        <source>On the left</source>
        <translation>على اليسار</translation>
    </message>
    <message>
        <source>On the right</source>
        <translation>على اليمين</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Learners can look for the fault.</source>
        <translation>القطعة المعطلة لا تمرر تيارًا. يمكن للمتعلمين البحث عن العطل.</translation>
    </message>
    <message>
        <source>Brok&amp;en</source>
        <translation>م&amp;عطلة</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Break it?</source>
        <translation>القطعة المعطلة لا تمرر تيارًا. هل تُعطَّل؟</translation>
    </message>
</context>
<context>
    <name>ConnectionForm</name>
    <message>
        <source>Connection</source>
        <translation>وصلة</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>سماكة الخط المرسوم.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>لون الخط.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى القطعة.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>النص المعروض معها.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>القطع غير المرئية تظل تعمل، لكن القارئ لا يراها.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>م&amp;رئية أثناء تشغيل النموذج</translation>
    </message>
</context>
<context>
    <name>DecisionForm</name>
    <message>
        <source>Decision</source>
        <translation>قرار</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>اسم خرج المفتاح أو المستشعر المسؤول عنه.</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>ما يُسأل عن المدخل.</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>العدد الذي يقارن به المدخل.</translation>
    </message>
    <message>
        <source>Goes on at the right when the answer is yes; otherwise downwards.</source>
        <translation>يتابع يمينًا إذا كان الجواب نعم؛ وإلا إلى الأسفل.</translation>
    </message>
    <message>
        <source>&amp;Yes branch to the right</source>
        <translation>فرع &amp;نعم إلى اليمين</translation>
    </message>
    <message>
        <source>The chart waits here.</source>
        <translation>المخطط ينتظر هنا.</translation>
    </message>
    <message>
        <source>&amp;Asks until the answer is yes</source>
        <translation>ي&amp;سأل حتى يكون الجواب نعم</translation>
    </message>
    <message>
        <source>Writes Yes and No at the branches.</source>
        <translation>يكتب نعم ولا عند الفروع.</translation>
    </message>
    <message>
        <source>&amp;Write the answers</source>
        <translation>&amp;كتابة الأجوبة</translation>
    </message>
</context>
<context>
    <name>ElementForm</name>
    <message>
        <source>Element</source>
        <translation>عنصر</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى القطعة.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>النص المعروض معها.</translation>
    </message>
    <message>
        <source>Where the centre is.</source>
        <translation>أين المركز.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Width and height.</source>
        <translation>العرض والارتفاع.</translation>
    </message>
    <message>
        <source>How far it is turned clockwise.</source>
        <translation>كم أُدير باتجاه عقارب الساعة.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>القطع غير المرئية تظل تعمل، لكن القارئ لا يراها.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>م&amp;رئية أثناء تشغيل النموذج</translation>
    </message>
</context>
<context>
    <name>FlowchartsSpaceForm</name>
    <message>
        <source>Flowcharts</source>
        <translation>المخططات الانسيابية</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>بأي سرعة تعمل مخططات الفضاء.</translation>
    </message>
</context>
<context>
    <name>GalleryForm</name>
    <message>
        <source>Gallery of controls</source>
        <translation>معرض عناصر التحكم</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
    <message>
        <source>Check boxes and buttons</source>
        <translation>خانات وأزرار</translation>
    </message>
    <message>
        <source>Checked while the property is true.</source>
        <translation>مؤشَّرة ما دامت الخاصية صحيحة.</translation>
    </message>
    <message>
        <source>&amp;Switched on</source>
        <translation>&amp;مُشغَّل</translation>
    </message>
    <message>
        <source>Asks before it writes.</source>
        <translation>يسأل قبل أن يكتب.</translation>
    </message>
    <message>
        <source>Trusted, as&amp;ked first</source>
        <translation>موثوق، مع &amp;سؤال</translation>
    </message>
    <message>
        <source>Do you really trust this part?</source>
        <translation>هل تثق حقًا بهذه القطعة؟</translation>
    </message>
    <message>
        <source>Do you no longer trust this part?</source>
        <translation>ألم تعد تثق بهذه القطعة؟</translation>
    </message>
    <message>
        <source>Switches between two words.</source>
        <translation>يبدل بين كلمتين.</translation>
    </message>
    <message>
        <source>&amp;Loud</source>
        <translation>&amp;عالٍ</translation>
    </message>
    <message>
        <source>The property is true for as long as the button is held down.</source>
        <translation>الخاصية صحيحة ما دام الزر مضغوطًا.</translation>
    </message>
    <message>
        <source>Hold &amp;down</source>
        <translation>اضغط با&amp;ستمرار</translation>
    </message>
    <message>
        <source>The property is true while the button is pressed in.</source>
        <translation>الخاصية صحيحة ما دام الزر مكبوسًا.</translation>
    </message>
    <message>
        <source>Press i&amp;n</source>
        <translation>ا&amp;كبس</translation>
    </message>
    <message>
        <source>The same word as the check box above.</source>
        <translation>الكلمة نفسها كالخانة أعلاه.</translation>
    </message>
    <message>
        <source>L&amp;oud</source>
        <translation>عا&amp;لٍ</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>اختيارات</translation>
    </message>
    <message>
        <source>A yes or no in words.</source>
        <translation>نعم أو لا بكلمات.</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>إلى الأمام</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>إلى الخلف</translation>
    </message>
    <message>
        <source>Pictures and texts in the place of words.</source>
        <translation>صور ونصوص مكان الكلمات.</translation>
    </message>
    <message>
        <source>Three colours.</source>
        <translation>ثلاثة ألوان.</translation>
    </message>
    <message>
        <source>Whole numbers.</source>
        <translation>أعداد صحيحة.</translation>
    </message>
    <message>
        <source>Numbers.</source>
        <translation>أعداد.</translation>
    </message>
    <message>
        <source>Points.</source>
        <translation>نقاط.</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>ريح</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>عاصف</translation>
    </message>
    <message>
        <source>Enabled while the weather is windy.</source>
        <translation>متاح ما دام الطقس عاصفًا.</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>نصوص</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>أي نص.</translation>
    </message>
    <message>
        <source>A capital letter and a digit; red while it is none.</source>
        <translation>حرف كبير ورقم؛ أحمر ما لم يكن كذلك.</translation>
    </message>
    <message>
        <source>A whole number or a sum such as 1900+87.</source>
        <translation>عدد صحيح أو مجموع مثل 1900+87.</translation>
    </message>
    <message>
        <source>Looks like a link until it is edited.</source>
        <translation>يبدو كرابط حتى يُحرَّر.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Disabled, because nobody can edit the property.</source>
        <translation>غير متاح، لأن لا أحد يستطيع تحرير الخاصية.</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>أعداد</translation>
    </message>
    <message>
        <source>A whole number; the longer a button is held, the faster it runs.</source>
        <translation>عدد صحيح؛ كلما طال ضغط الزر، جرى أسرع.</translation>
    </message>
    <message>
        <source>A number in the unit beside it; other units can be typed as well.</source>
        <translation>عدد بالوحدة بجانبه؛ يمكن كتابة وحدات أخرى أيضًا.</translation>
    </message>
    <message>
        <source>The step follows from the range and the unit.</source>
        <translation>الخطوة تتبع المجال والوحدة.</translation>
    </message>
    <message>
        <source>x above y, in the unit beside them.</source>
        <translation>س فوق ص، بالوحدة بجانبهما.</translation>
    </message>
    <message>
        <source>A whole number, written while you drag.</source>
        <translation>عدد صحيح، يُكتب أثناء السحب.</translation>
    </message>
    <message>
        <source>The range follows the unit beside it.</source>
        <translation>المجال يتبع الوحدة بجانبه.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Any colour: chosen, typed by name or dropped.</source>
        <translation>أي لون: مختار أو مكتوب باسمه أو مُسقَط.</translation>
    </message>
    <message>
        <source>A button alone, without the system&apos;s dialog.</source>
        <translation>زر وحده، بلا مربع حوار النظام.</translation>
    </message>
    <message>
        <source>One of several</source>
        <translation>واحد من عدة</translation>
    </message>
    <message>
        <source>Each button stands for one word.</source>
        <translation>كل زر يمثل كلمة.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>S&amp;mall</source>
        <translation>&amp;صغير</translation>
    </message>
    <message>
        <source>Medi&amp;um</source>
        <translation>&amp;متوسط</translation>
    </message>
    <message>
        <source>Lar&amp;ge</source>
        <translation>&amp;كبير</translation>
    </message>
    <message>
        <source>What belongs to this choice is enabled while it is chosen.</source>
        <translation>ما يخص هذا الاختيار متاح ما دام مختارًا.</translation>
    </message>
    <message>
        <source>O&amp;wn width</source>
        <translation>&amp;عرض خاص</translation>
    </message>
    <message>
        <source>The width of your own format.</source>
        <translation>عرض تنسيقك الخاص.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>مجموعات</translation>
    </message>
    <message>
        <source>What is in the box is enabled while it is checked.</source>
        <translation>ما في الصندوق متاح ما دام مؤشَّرًا.</translation>
    </message>
    <message>
        <source>Guarded &amp;by</source>
        <translation>ي&amp;حرسه</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>من يقوم بالحراسة.</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>عناوين</translation>
    </message>
    <message>
        <source>The text itself.</source>
        <translation>النص نفسه.</translation>
    </message>
    <message>
        <source>The number as the spin box above shows it.</source>
        <translation>العدد كما يعرضه حقل الأعداد أعلاه.</translation>
    </message>
    <message>
        <source>Both coordinates.</source>
        <translation>الإحداثيان كلاهما.</translation>
    </message>
    <message>
        <source>The colour as documents write it.</source>
        <translation>اللون كما تكتبه المستندات.</translation>
    </message>
    <message>
        <source>Loud, as a button</source>
        <translation>عالٍ، كزر</translation>
    </message>
</context>
<context>
    <name>GearForm</name>
    <message>
        <source>Gear</source>
        <translation>ترس</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>أسنان</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>عدد الأسنان.</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>الزاوية التي تضغط بها الأسنان بعضها على بعض.</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>قطر الخطوة مقسومًا على عدد الأسنان؛ التروس المتعشقة لها القيمة نفسها.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>المعامل</translation>
    </message>
    <message>
        <source>0.5 mm</source>
        <translation>0.5 مم</translation>
    </message>
    <message>
        <source>1 mm</source>
        <translation>1 مم</translation>
    </message>
    <message>
        <source>1.5 mm</source>
        <translation>1.5 مم</translation>
    </message>
    <message>
        <source>2 mm</source>
        <translation>2 مم</translation>
    </message>
    <message>
        <source>Otherwise only the pitch circle is drawn.</source>
        <translation>وإلا تُرسم دائرة الخطوة فقط.</translation>
    </message>
    <message>
        <source>&amp;Draw the teeth</source>
        <translation>&amp;رسم الأسنان</translation>
    </message>
    <message>
        <source>Slanting teeth run more quietly.</source>
        <translation>الأسنان المائلة تدور بهدوء أكثر.</translation>
    </message>
    <message>
        <source>&amp;Slanting teeth</source>
        <translation>أسنان &amp;مائلة</translation>
    </message>
    <message>
        <source>Slanting teeth lean to the left; otherwise to the right.</source>
        <translation>الأسنان المائلة تميل يسارًا؛ وإلا يمينًا.</translation>
    </message>
    <message>
        <source>&amp;Left-handed</source>
        <translation>&amp;يساري</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>عجلة</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>عرض الأسنان على طول المحور.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>كم تبعد السرة عن وسط العجلة.</translation>
    </message>
</context>
<context>
    <name>InfoForm</name>
    <message>
        <source>Explanation</source>
        <translation>شرح</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>يفتح النافذة المنبثقة بلا نقر.</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>يُفتح حين يستقر ال&amp;مؤشر عليه</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>يخفي الزر بعد إغلاق نافذته المنبثقة.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>يختفي &amp;بعد القراءة</translation>
    </message>
</context>
<context>
    <name>LedForm</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>الضوء</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>لون الضوء.</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>مدى سطوع LED، بالمئة.</translation>
    </message>
    <message>
        <source>The LED shines as soon as the model starts.</source>
        <translation>يضيء LED بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>&amp;Lit at the start</source>
        <translation>م&amp;ضاء عند البداية</translation>
    </message>
    <message>
        <source>The LED goes on and off by itself.</source>
        <translation>يضيء LED وينطفئ من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>&amp;Blinking</source>
        <translation>&amp;وامض</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>الزمن من ومضة إلى التالية.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Shines all round; a clear lens throws a narrow beam.</source>
        <translation>يضيء من كل الجهات؛ العدسة الصافية تلقي حزمة ضيقة.</translation>
    </message>
    <message>
        <source>&amp;Milky lens</source>
        <translation>عدسة &amp;حليبية</translation>
    </message>
    <message>
        <source>Electrical</source>
        <translation>كهرباء</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>الجهد الذي يبدأ عنده LED بالإضاءة.</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>التيار الأكبر يتلف LED.</translation>
    </message>
    <message>
        <source>How wide the lens is.</source>
        <translation>عرض العدسة.</translation>
    </message>
    <message>
        <source>Diameter of the lens</source>
        <translation>قطر العدسة</translation>
    </message>
    <message>
        <source>3 mm</source>
        <translation>3 مم</translation>
    </message>
    <message>
        <source>5 mm</source>
        <translation>5 مم</translation>
    </message>
    <message>
        <source>10 mm</source>
        <translation>10 مم</translation>
    </message>
    <message>
        <source>Legs and pads</source>
        <translation>الأرجل ونقاط اللحام</translation>
    </message>
    <message>
        <source>Writes anode and cathode beside the pins.</source>
        <translation>يكتب المصعد والمهبط بجانب الأطراف.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>الأ&amp;سماء عند الأطراف</translation>
    </message>
    <message>
        <source>Lines the holes of the solder pads with metal.</source>
        <translation>يبطن ثقوب نقاط اللحام بالمعدن.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>م&amp;بطن بالمعدن</translation>
    </message>
    <message>
        <source>Shows what lies behind the lens.</source>
        <translation>يعرض ما خلف العدسة.</translation>
    </message>
    <message>
        <source>See-&amp;through lens</source>
        <translation>عدسة &amp;شفافة</translation>
    </message>
</context>
<context>
    <name>LightSensorForm</name>
    <message>
        <source>Light sensor</source>
        <translation>مستشعر ضوء</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>مدى السطوع عند البداية، بالمئة.</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>السطوع الذي يعده المستشعر ظلامًا.</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>المقاومة حين لا يسقط ضوء على المستشعر.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>المقاومة في الضوء الكامل.</translation>
    </message>
    <message>
        <source>Gives its signal when it is dark; otherwise when it is bright.</source>
        <translation>يعطي إشارته في الظلام؛ وإلا في الضوء.</translation>
    </message>
    <message>
        <source>Signal in the &amp;dark</source>
        <translation>الإشارة في ال&amp;ظلام</translation>
    </message>
    <message>
        <source>The reader sets the brightness with the slider below the sensor.</source>
        <translation>يضبط القارئ السطوع بالمنزلق تحت المستشعر.</translation>
    </message>
    <message>
        <source>&amp;Follows its slider</source>
        <translation>يت&amp;بع منزلقه</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>منزلق</translation>
    </message>
    <message>
        <source>Otherwise only the model itself moves the slider.</source>
        <translation>وإلا فالنموذج نفسه وحده يحرك المنزلق.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>يمكن للقارئ أن يح&amp;ركه</translation>
    </message>
</context>
<context>
    <name>LinkForm</name>
    <message>
        <source>Link</source>
        <translation>الارتباط</translation>
    </message>
    <message>
        <source>Arrow and route</source>
        <translation>السهم والمسار</translation>
    </message>
    <message>
        <source>Draws an arrow head at the end.</source>
        <translation>يرسم رأس سهم في النهاية.</translation>
    </message>
    <message>
        <source>&amp;Arrow head</source>
        <translation>رأس &amp;سهم</translation>
    </message>
    <message>
        <source>Draws a dashed line.</source>
        <translation>يرسم خطًا متقطعًا.</translation>
    </message>
    <message>
        <source>&amp;Dashed</source>
        <translation>مت&amp;قطع</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from block to block.</source>
        <translation>يسير بزوايا قائمة؛ وإلا مستقيمًا من كتلة إلى كتلة.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>زوايا &amp;قائمة فقط</translation>
    </message>
</context>
<context>
    <name>MachinePartForm</name>
    <message>
        <source>Machine part</source>
        <translation>قطعة آلة</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>الحركة</translation>
    </message>
    <message>
        <source>A part that is not free is fixed to the base.</source>
        <translation>القطعة غير الحرة مثبتة على القاعدة.</translation>
    </message>
    <message>
        <source>&amp;Free to turn</source>
        <translation>&amp;حرة الدوران</translation>
    </message>
    <message>
        <source>An arrow shows the way the part turns.</source>
        <translation>سهم يبين جهة دوران القطعة.</translation>
    </message>
    <message>
        <source>Show the direct&amp;ion</source>
        <translation>عرض ال&amp;جهة</translation>
    </message>
    <message>
        <source>Writes the turning speed on the part.</source>
        <translation>يكتب سرعة الدوران على القطعة.</translation>
    </message>
    <message>
        <source>Show the sp&amp;eed</source>
        <translation>عرض ال&amp;سرعة</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>المادة</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>مم صُنعت القطعة.</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>كتلة القطعة.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>لون القطعة.</translation>
    </message>
</context>
<context>
    <name>MeterForm</name>
    <message>
        <source>Meter</source>
        <translation>جهاز قياس</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>ما يقيسه الجهاز.</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>لون المؤشر.</translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation>&amp;العرض:</translation>
    </message>
    <message>
        <source>Shows figures while pressed in, a needle over a scale otherwise.</source>
        <translation>يعرض أرقامًا عند الكبس، ومؤشرًا فوق تدريج بغير ذلك.</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>أرقام</translation>
    </message>
    <message>
        <source>The reading stays as it is.</source>
        <translation>تبقى القراءة كما هي.</translation>
    </message>
    <message>
        <source>&amp;Hold the reading</source>
        <translation>&amp;تثبيت القراءة</translation>
    </message>
    <message>
        <source>Shows the greatest reading so far as well.</source>
        <translation>يعرض أكبر قراءة حتى الآن أيضًا.</translation>
    </message>
    <message>
        <source>Show the &amp;peak</source>
        <translation>عرض ال&amp;ذروة</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>الاستعمال</translation>
    </message>
    <message>
        <source>Otherwise only the model itself turns the range knob.</source>
        <translation>وإلا فالنموذج نفسه وحده يدير مقبض المدى.</translation>
    </message>
    <message>
        <source>Range can be &amp;worked by the reader</source>
        <translation>يمكن للقارئ تغيير ال&amp;مدى</translation>
    </message>
</context>
<context>
    <name>MotorForm</name>
    <message>
        <source>Motor</source>
        <translation>محرك</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>&amp;الدفع:</translation>
    </message>
    <message>
        <source>The motor turns as soon as the model starts.</source>
        <translation>يدور المحرك بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>يدور عند البداية</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>بأي سرعة يدور المحرك بلا حمل.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>الجهد الذي صُنع المحرك له.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>الاسم الذي تبدّل به المخططات المحرك؛ فارغ حين لا يفعل أي منها.</translation>
    </message>
    <message>
        <source>Otherwise the motor turns clockwise.</source>
        <translation>وإلا يدور المحرك باتجاه عقارب الساعة.</translation>
    </message>
    <message>
        <source>Turns &amp;counterclockwise</source>
        <translation>يدور &amp;عكس عقارب الساعة</translation>
    </message>
    <message>
        <source>A gear box makes the shaft turn more slowly and more strongly.</source>
        <translation>علبة التروس تجعل العمود يدور أبطأ وأقوى.</translation>
    </message>
    <message>
        <source>With &amp;gear box</source>
        <translation>مع علبة &amp;تروس</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>كم دورة للمحرك تعطي دورة واحدة للعمود.</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Basics</source>
        <extracomment>Name of a package of parts</extracomment>
        <translation>أساسيات</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>إلكترونيات</translation>
    </message>
    <message>
        <source>Flowcharts</source>
        <translation>المخططات الانسيابية</translation>
    </message>
    <message>
        <source>Mechanics</source>
        <translation>ميكانيكا</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Explanations</source>
        <translation>شروح</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>عرض توضيحي</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>تغذية</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>مداخل</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>مكونات</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>مخارج</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>قياس</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>أسلاك</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>تدفق</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>دفع</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>عجلات</translation>
    </message>
</context>
<context>
    <name>PictureForm</name>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>الصورة المعروضة.</translation>
    </message>
    <message>
        <source>Keeps the ratio of width and height when the picture is resized.</source>
        <translation>يحافظ على نسبة العرض إلى الارتفاع عند تغيير حجم الصورة.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>الحفاظ على ال&amp;نسب</translation>
    </message>
    <message>
        <source>Exchanges left and right.</source>
        <translation>يبادل بين اليسار واليمين.</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>م&amp;عكوسة</translation>
    </message>
    <message>
        <source>Draws a thin frame round the picture.</source>
        <translation>يرسم إطارًا رفيعًا حول الصورة.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>رسم إ&amp;طار</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>من أين جاءت الصورة ومن صنعها.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>صور أخرى</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>صور تُعرض بالتناوب بعد الأولى.</translation>
    </message>
</context>
<context>
    <name>PopupForm</name>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى القطعة.</translation>
    </message>
    <message>
        <source>The heading shown above the pop-up.</source>
        <translation>العنوان المعروض فوق النافذة المنبثقة.</translation>
    </message>
    <message>
        <source>The pop-up is open from the start; otherwise its part opens it.</source>
        <translation>النافذة المنبثقة مفتوحة من البداية؛ وإلا تفتحها قطعتها.</translation>
    </message>
    <message>
        <source>&amp;Open when the model starts</source>
        <translation>م&amp;فتوحة عند بدء النموذج</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر العام</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>عرض الفضاء وارتفاعه.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>اللون خلف القطع.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>يرسم شبكة من 5 مم خلف القطع.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>عرض &amp;شبكة</translation>
    </message>
    <message>
        <source>Name of the pop-up</source>
        <translation>اسم النافذة المنبثقة</translation>
    </message>
</context>
<context>
    <name>ProcedureForm</name>
    <message>
        <source>Procedure</source>
        <translation>إجراء</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>كم مرة يُشغَّل المخطط في النافذة المنبثقة.</translation>
    </message>
    <message>
        <source>Opens the pop-up with its chart while the procedure runs.</source>
        <translation>يفتح النافذة المنبثقة بمخططها أثناء تشغيل الإجراء.</translation>
    </message>
    <message>
        <source>&amp;Opens while it runs</source>
        <translation>يُ&amp;فتح أثناء تشغيله</translation>
    </message>
    <message>
        <source>Otherwise a stop block inside ends the whole chart.</source>
        <translation>وإلا تنهي كتلة توقف بداخله المخطط كله.</translation>
    </message>
    <message>
        <source>Stop ends only the &amp;procedure</source>
        <translation>التوقف ينهي الإ&amp;جراء فقط</translation>
    </message>
</context>
<context>
    <name>PulleyForm</name>
    <message>
        <source>Pulley</source>
        <translation>بكرة سير</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>الأخدود</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>القطر الذي يسير عليه السير.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>For belts with a V section; otherwise the groove is round.</source>
        <translation>للسيور ذات المقطع V؛ وإلا فالأخدود مستدير.</translation>
    </message>
    <message>
        <source>V-&amp;shaped groove</source>
        <translation>أخدود بشكل &amp;V</translation>
    </message>
    <message>
        <source>Rims keep the belt in the groove.</source>
        <translation>الحواف تبقي السير في الأخدود.</translation>
    </message>
    <message>
        <source>With &amp;rims</source>
        <translation>مع &amp;حواف</translation>
    </message>
    <message>
        <source>The belt slips when the load is too great.</source>
        <translation>ينزلق السير إذا كان الحمل أكبر من اللازم.</translation>
    </message>
    <message>
        <source>&amp;Belt may slip</source>
        <translation>قد ي&amp;نزلق السير</translation>
    </message>
</context>
<context>
    <name>PushButtonForm</name>
    <message>
        <source>Push button</source>
        <translation>زر ضغط</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>لون الغطاء.</translation>
    </message>
    <message>
        <source>A lamp shines in the cap while the button is held down.</source>
        <translation>يضيء مصباح في الغطاء ما دام الزر مضغوطًا.</translation>
    </message>
    <message>
        <source>Cap &amp;lights up</source>
        <translation>الغطاء ي&amp;ضيء</translation>
    </message>
    <message>
        <source>&amp;Try it:</source>
        <translation>&amp;جرّبه:</translation>
    </message>
    <message>
        <source>Closes the contact for as long as this button is held down.</source>
        <translation>يغلق التلامس ما دام هذا الزر مضغوطًا.</translation>
    </message>
    <message>
        <source>Hold down</source>
        <translation>اضغط باستمرار</translation>
    </message>
</context>
<context>
    <name>ResistorForm</name>
    <message>
        <source>Resistor</source>
        <translation>مقاوم</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>المقاومة كما طُبعت على القطعة.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>كم يمكن أن تبتعد المقاومة الحقيقية عن المطبوعة، بالمئة.</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>القدرة التي تتحملها القطعة دون أن تحترق.</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>الرسم</translation>
    </message>
    <message>
        <source>Draws the coloured bands that tell the resistance.</source>
        <translation>يرسم الحلقات الملونة التي تدل على المقاومة.</translation>
    </message>
    <message>
        <source>Colour &amp;bands</source>
        <translation>حلقات &amp;ملونة</translation>
    </message>
    <message>
        <source>Draws the American zigzag line instead of the box.</source>
        <translation>يرسم الخط المتعرج الأمريكي بدلًا من الصندوق.</translation>
    </message>
    <message>
        <source>&amp;Zigzag symbol</source>
        <translation>رمز &amp;متعرج</translation>
    </message>
    <message>
        <source>Solder pads</source>
        <translation>نقاط اللحام</translation>
    </message>
    <message>
        <source>Square pads mark a place on the board; otherwise they are round.</source>
        <translation>النقاط المربعة تدل على مكان في اللوحة؛ وإلا فهي مستديرة.</translation>
    </message>
    <message>
        <source>S&amp;quare pads</source>
        <translation>نقاط م&amp;ربعة</translation>
    </message>
    <message>
        <source>Lines the holes with metal.</source>
        <translation>يبطن الثقوب بالمعدن.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>م&amp;بطن بالمعدن</translation>
    </message>
</context>
<context>
    <name>SceneForm</name>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى القطعة.</translation>
    </message>
    <message>
        <source>The heading shown above the scene.</source>
        <translation>العنوان المعروض فوق المشهد.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر العام</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>عرض الفضاء وارتفاعه.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>اللون خلف القطع.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>يرسم شبكة من 5 مم خلف القطع.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>عرض &amp;شبكة</translation>
    </message>
</context>
<context>
    <name>ShaftForm</name>
    <message>
        <source>Shaft</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>قطر العمود.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>كم يلتوي العمود تحت الحمل الكامل.</translation>
    </message>
    <message>
        <source>The shaft is a tube.</source>
        <translation>العمود أنبوب.</translation>
    </message>
    <message>
        <source>&amp;Hollow</source>
        <translation>أ&amp;جوف</translation>
    </message>
    <message>
        <source>A key makes the wheels turn with the shaft.</source>
        <translation>الخابور يجعل العجلات تدور مع العمود.</translation>
    </message>
    <message>
        <source>With &amp;key</source>
        <translation>مع &amp;خابور</translation>
    </message>
    <message>
        <source>Otherwise the ends are plain.</source>
        <translation>وإلا فالأطراف مستوية.</translation>
    </message>
    <message>
        <source>&amp;Rounded ends</source>
        <translation>أطراف مس&amp;تديرة</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>عجلات</translation>
    </message>
    <message>
        <source>The wheels turn on the shaft rather than with it.</source>
        <translation>العجلات تدور على العمود لا معه.</translation>
    </message>
    <message>
        <source>&amp;Wheels run freely</source>
        <translation>ال&amp;عجلات حرة</translation>
    </message>
</context>
<context>
    <name>StartForm</name>
    <message>
        <source>Start</source>
        <translation>بداية</translation>
    </message>
    <message>
        <source>The chart runs as soon as the model starts.</source>
        <translation>يعمل المخطط بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>Starts by itsel&amp;f</source>
        <translation>يبدأ من تلقاء ن&amp;فسه</translation>
    </message>
    <message>
        <source>One input that is on starts the chart; otherwise all must be on.</source>
        <translation>مدخل واحد مُشغَّل يبدأ المخطط؛ وإلا يجب أن تكون كلها كذلك.</translation>
    </message>
    <message>
        <source>&amp;Any input is enough</source>
        <translation>يكفي أي &amp;مدخل</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>كم ينتظر المخطط قبل كتلته الأولى.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
</context>
<context>
    <name>StepForm</name>
    <message>
        <source>Step</source>
        <translation>خطوة</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>ما تفعله الكتلة بخرجها.</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>اسم خرج المكونات التي تبدّلها الكتلة.</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>كم تستغرق الخطوة.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>بأي قوة يُشغَّل الخرج، بالمئة.</translation>
    </message>
    <message>
        <source>Switches the output on; otherwise it is switched off.</source>
        <translation>يشغّل الخرج؛ وإلا يُطفأ.</translation>
    </message>
    <message>
        <source>Switches &amp;on</source>
        <translation>ي&amp;شغّل</translation>
    </message>
    <message>
        <source>The chart goes on only when the time is over.</source>
        <translation>لا يتابع المخطط إلا بعد انقضاء الوقت.</translation>
    </message>
    <message>
        <source>&amp;Waits for the end</source>
        <translation>ي&amp;نتظر النهاية</translation>
    </message>
    <message>
        <source>Leaves just this output on.</source>
        <translation>يترك هذا الخرج وحده مُشغَّلًا.</translation>
    </message>
    <message>
        <source>Switches all o&amp;ther outputs off</source>
        <translation>يطفئ كل المخارج الأ&amp;خرى</translation>
    </message>
</context>
<context>
    <name>StopForm</name>
    <message>
        <source>Stop</source>
        <translation>توقف</translation>
    </message>
    <message>
        <source>The chart begins again from its start.</source>
        <translation>يبدأ المخطط من جديد من بدايته.</translation>
    </message>
    <message>
        <source>&amp;Starts again</source>
        <translation>ي&amp;بدأ من جديد</translation>
    </message>
    <message>
        <source>A chart that starts again never ends by itself. Start again?</source>
        <translation>المخطط الذي يبدأ من جديد لا ينتهي من تلقاء نفسه أبدًا. هل يبدأ من جديد؟</translation>
    </message>
    <message>
        <source>The chart will end here. End it?</source>
        <translation>سينتهي المخطط هنا. هل ينتهي؟</translation>
    </message>
    <message>
        <source>Otherwise they stay as they are.</source>
        <translation>وإلا تبقى كما هي.</translation>
    </message>
    <message>
        <source>Switches all &amp;outputs off</source>
        <translation>يطفئ كل المخا&amp;رج</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>ما يُعرض للقارئ في النهاية.</translation>
    </message>
</context>
<context>
    <name>SwitchForm</name>
    <message>
        <source>Switch</source>
        <translation>مفتاح كهربائي</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>ال&amp;تلامس:</translation>
    </message>
    <message>
        <source>Lets current through as soon as the model starts.</source>
        <translation>يمرر التيار بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>Closed at the start</source>
        <translation>مغلق عند البداية</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>ال&amp;نوع:</translation>
    </message>
    <message>
        <source>Whether the contact stays as it is set, or opens again when it is let go.</source>
        <translation>هل يبقى التلامس كما وُضع، أم يُفتح ثانية عند تركه.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>يرتد</translation>
    </message>
    <message>
        <source>Stays where it is put</source>
        <translation>يبقى حيث وُضع</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>مقاومة التلامس المغلق.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>كم يرتجف التلامس عند إغلاقه.</translation>
    </message>
    <message>
        <source>Draws the lever with its hinge on the right; otherwise on the left.</source>
        <translation>يرسم الذراع ومفصله على اليمين؛ وإلا على اليسار.</translation>
    </message>
    <message>
        <source>&amp;Hinge on the right</source>
        <translation>ال&amp;مفصل على اليمين</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>الاستعمال</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>المفتاح الذي يشغّل القاطع أثناء تشغيل النموذج؛ حرف كبير واحد أو رقم.</translation>
    </message>
    <message>
        <source>Otherwise only the model itself works the switch.</source>
        <translation>وإلا فالنموذج نفسه وحده يشغّل القاطع.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>يمكن للقارئ أن يح&amp;ركه</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>يكتب اسم كل طرف بجانبه.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>الأ&amp;سماء عند الأطراف</translation>
    </message>
</context>
<context>
    <name>TextForm</name>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>الحروف</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>ما كُتب؛ يُلف عند عرض القطعة.</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>ارتفاع سطر من النص.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>الوحدة المعروضة؛ النقر يعرض غيرها.</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>أين تكون الأسطر ضمن العرض.</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>لون الحروف.</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>ال&amp;سماكة:</translation>
    </message>
    <message>
        <source>Writes the text in bold letters.</source>
        <translation>يكتب النص بحروف عريضة.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>عريض</translation>
    </message>
    <message>
        <source>&amp;Slant:</source>
        <translation>ال&amp;ميل:</translation>
    </message>
    <message>
        <source>Writes the text in sloping letters.</source>
        <translation>يكتب النص بحروف مائلة.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>Draws a thin frame round the text.</source>
        <translation>يرسم إطارًا رفيعًا حول النص.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>رسم إ&amp;طار</translation>
    </message>
</context>
<context>
    <name>WireForm</name>
    <message>
        <source>Wire</source>
        <translation>سلك</translation>
    </message>
    <message>
        <source>The cross-section of the copper.</source>
        <translation>مقطع النحاس.</translation>
    </message>
    <message>
        <source>The wire has a coloured cover.</source>
        <translation>للسلك غلاف ملون.</translation>
    </message>
    <message>
        <source>&amp;Insulated</source>
        <translation>م&amp;عزول</translation>
    </message>
    <message>
        <source>Many thin wires make it easy to bend.</source>
        <translation>أسلاك رفيعة كثيرة تجعله سهل الثني.</translation>
    </message>
    <message>
        <source>&amp;Stranded</source>
        <translation>م&amp;جدول</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from pin to pin.</source>
        <translation>يسير بزوايا قائمة؛ وإلا مستقيمًا من طرف إلى طرف.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>زوايا &amp;قائمة فقط</translation>
    </message>
</context>
<context>
    <name>core/body</name>
    <message>
        <source>Body</source>
        <translation>الجسم</translation>
    </message>
</context>
<context>
    <name>core/collections</name>
    <message>
        <source>Gallery of collections</source>
        <translation>معرض المجموعات</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>صورة واحدة.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>One of a few pictures.</source>
        <translation>واحدة من بضع صور.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>شمس</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>مطر</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>ألبوم</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>أي عدد من الصور.</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>مفاتيح وقيم.</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>الكتابة</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>خط نص.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>المستوى</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>عدد يمكنه أن يتبع آخر.</translation>
    </message>
</context>
<context>
    <name>core/connection</name>
    <message>
        <source>Connection</source>
        <translation>وصلة</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>The pin at which the connection begins.</source>
        <translation>الطرف الذي تبدأ عنده الوصلة.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>The pin at which the connection ends.</source>
        <translation>الطرف الذي تنتهي عنده الوصلة.</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>سماكة الخط</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>سماكة الخط المرسوم.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>لون الخط.</translation>
    </message>
</context>
<context>
    <name>core/control</name>
    <message>
        <source>Control</source>
        <translation>عنصر تحكم</translation>
    </message>
</context>
<context>
    <name>core/domain</name>
    <message>
        <source>Domain</source>
        <translation>مجال</translation>
    </message>
</context>
<context>
    <name>core/element</name>
    <message>
        <source>Element</source>
        <translation>عنصر</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the element.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى العنصر.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>The text shown with the element.</source>
        <translation>النص المعروض مع العنصر.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Where the centre of the element is.</source>
        <translation>أين مركز العنصر.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Width and height of the element.</source>
        <translation>عرض العنصر وارتفاعه.</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>How far the element is turned clockwise.</source>
        <translation>كم أُدير العنصر باتجاه عقارب الساعة.</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>How the element may be turned: freely, by right angles, or not at all.</source>
        <translation>كيف يمكن تدوير العنصر: بحرية، أو بزوايا قائمة، أو لا يمكن.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>حر</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>ربع دورة</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>ثابت</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>مرئي</translation>
    </message>
    <message>
        <source>Whether the element is seen while the model runs.</source>
        <translation>هل يُرى العنصر أثناء تشغيل النموذج.</translation>
    </message>
</context>
<context>
    <name>core/gallery</name>
    <message>
        <source>Gallery of controls</source>
        <translation>معرض عناصر التحكم</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>مُشغَّل</translation>
    </message>
    <message>
        <source>A yes or no.</source>
        <translation>نعم أو لا.</translation>
    </message>
    <message>
        <source>Trusted</source>
        <translation>موثوق</translation>
    </message>
    <message>
        <source>A yes or no that is asked about before it changes.</source>
        <translation>نعم أو لا يُسأل عنه قبل أن يتغير.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>علو الصوت</translation>
    </message>
    <message>
        <source>One of two words.</source>
        <translation>واحدة من كلمتين.</translation>
    </message>
    <message>
        <source>quiet</source>
        <translation>خافت</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>عالٍ</translation>
    </message>
    <message>
        <source>Held down</source>
        <translation>مضغوط</translation>
    </message>
    <message>
        <source>True for as long as a button is held down.</source>
        <translation>صحيح ما دام زر مضغوطًا.</translation>
    </message>
    <message>
        <source>Latched</source>
        <translation>مكبوس</translation>
    </message>
    <message>
        <source>True while a button is pressed in.</source>
        <translation>صحيح ما دام زر مكبوسًا.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>A yes or no with words of its own.</source>
        <translation>نعم أو لا بكلمات خاصة.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>One of several words, shown as pictures and texts.</source>
        <translation>واحدة من عدة كلمات، معروضة صورًا ونصوصًا.</translation>
    </message>
    <message>
        <source>sun</source>
        <translation>شمس</translation>
    </message>
    <message>
        <source>rain</source>
        <translation>مطر</translation>
    </message>
    <message>
        <source>wind</source>
        <translation>ريح</translation>
    </message>
    <message>
        <source>fog</source>
        <translation>ضباب</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>القوة</translation>
    </message>
    <message>
        <source>How strongly the wind blows, from 0 to 12.</source>
        <translation>مدى شدة الريح، من 0 إلى 12.</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>One of a few colours.</source>
        <translation>واحد من بضعة ألوان.</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>اللاعبون</translation>
    </message>
    <message>
        <source>One of a few whole numbers.</source>
        <translation>واحد من بضعة أعداد صحيحة.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>النسبة</translation>
    </message>
    <message>
        <source>One of a few numbers.</source>
        <translation>واحد من بضعة أعداد.</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>الزاوية</translation>
    </message>
    <message>
        <source>One of a few points.</source>
        <translation>واحدة من بضع نقاط.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>أي نص.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>A capital letter and a digit.</source>
        <translation>حرف كبير ورقم.</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation>عدد صحيح.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>A length in the unit that you choose.</source>
        <translation>طول بالوحدة التي تختارها.</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>A text that nobody can change.</source>
        <translation>نص لا يستطيع أحد تغييره.</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>القطع المعدودة</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>الوزن</translation>
    </message>
    <message>
        <source>A weight in the unit that you choose.</source>
        <translation>وزن بالوحدة التي تختارها.</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>الميل</translation>
    </message>
    <message>
        <source>An angle; the step follows from what is allowed, in the unit shown.</source>
        <translation>زاوية؛ الخطوة تتبع ما هو مسموح، بالوحدة المعروضة.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>A point in the unit that you choose.</source>
        <translation>نقطة بالوحدة التي تختارها.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>المستوى</translation>
    </message>
    <message>
        <source>A whole number from 0 to 100.</source>
        <translation>عدد صحيح من 0 إلى 100.</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>العمق</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>الطلاء</translation>
    </message>
    <message>
        <source>Any colour.</source>
        <translation>أي لون.</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>القص</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>One of several words, or a width of its own.</source>
        <translation>واحدة من عدة كلمات، أو عرض خاص.</translation>
    </message>
    <message>
        <source>small</source>
        <translation>صغير</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>large</source>
        <translation>كبير</translation>
    </message>
    <message>
        <source>own</source>
        <translation>خاص</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>The width of a format of its own.</source>
        <translation>عرض تنسيق خاص.</translation>
    </message>
    <message>
        <source>Guarded</source>
        <translation>محروس</translation>
    </message>
    <message>
        <source>Whether what belongs to a guard is in use.</source>
        <translation>هل يُستخدم ما يخص حارسًا.</translation>
    </message>
    <message>
        <source>Name of the guard</source>
        <translation>اسم الحارس</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>من يقوم بالحراسة.</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>عاصف</translation>
    </message>
    <message>
        <source>Fog, &lt;i&gt;fine&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</source>
        <translation>ضباب، H&lt;sub&gt;2&lt;/sub&gt;O &lt;i&gt;ناعم&lt;/i&gt;</translation>
    </message>
</context>
<context>
    <name>core/info</name>
    <message>
        <source>Explanation</source>
        <translation>شرح</translation>
    </message>
    <message>
        <source>Opens on</source>
        <translation>يُفتح عند</translation>
    </message>
    <message>
        <source>What the reader does to open the explanation.</source>
        <translation>ما يفعله القارئ لفتح الشرح.</translation>
    </message>
    <message>
        <source>click</source>
        <translation>نقر</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>مرور</translation>
    </message>
    <message>
        <source>Only once</source>
        <translation>مرة واحدة فقط</translation>
    </message>
    <message>
        <source>Whether the button goes away when the explanation has been read.</source>
        <translation>هل يختفي الزر بعد قراءة الشرح.</translation>
    </message>
    <message>
        <source>Been read</source>
        <translation>مقروء</translation>
    </message>
    <message>
        <source>Whether the reader has closed the explanation, while the model runs.</source>
        <translation>ما إذا كان القارئ قد أغلق الشرح أثناء تشغيل النموذج.</translation>
    </message>
</context>
<context>
    <name>core/model</name>
    <message>
        <source>Model</source>
        <translation>النموذج</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>The name of the model, as people read it.</source>
        <translation>اسم النموذج كما يقرؤه الناس.</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Who made the model.</source>
        <translation>من صنع النموذج.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>ملاحظات</translation>
    </message>
    <message>
        <source>What a teacher should know before using the model.</source>
        <translation>ما ينبغي للمعلم معرفته قبل استخدام النموذج.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Whether the running model stands still for a moment.</source>
        <translation>هل يقف النموذج العامل لحظة.</translation>
    </message>
</context>
<context>
    <name>core/pad</name>
    <message>
        <source>Pad</source>
        <translation>نقطة لحام</translation>
    </message>
</context>
<context>
    <name>core/part</name>
    <message>
        <source>Part</source>
        <translation>القطعة</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>النقر</translation>
    </message>
    <message>
        <source>What a click on the part does while the model runs, besides what the part itself does.</source>
        <translation>ما يفعله النقر على القطعة أثناء تشغيل النموذج، علاوة على ما تفعله القطعة نفسها.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>show pop-up</source>
        <translation>عرض النافذة المنبثقة</translation>
    </message>
    <message>
        <source>open link</source>
        <translation>فتح الرابط</translation>
    </message>
    <message>
        <source>show scene</source>
        <translation>عرض المشهد</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الارتباط</translation>
    </message>
    <message>
        <source>The address that a click opens.</source>
        <translation>العنوان الذي يفتحه النقر.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
    <message>
        <source>The scene that a click shows.</source>
        <translation>المشهد الذي يعرضه النقر.</translation>
    </message>
</context>
<context>
    <name>core/picture</name>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>الصورة المعروضة.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>صور أخرى</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>صور تُعرض بالتناوب بعد الأولى.</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>الحفاظ على النسب</translation>
    </message>
    <message>
        <source>Whether the picture keeps the ratio of width and height.</source>
        <translation>هل تحافظ الصورة على نسبة العرض إلى الارتفاع.</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>معكوسة</translation>
    </message>
    <message>
        <source>Whether left and right are exchanged.</source>
        <translation>هل بُدّل اليسار واليمين.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>مؤطرة</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the picture.</source>
        <translation>هل يُرسم إطار رفيع حول الصورة.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>من أين جاءت الصورة ومن صنعها.</translation>
    </message>
</context>
<context>
    <name>core/pin</name>
    <message>
        <source>Pin</source>
        <translation>طرف</translation>
    </message>
</context>
<context>
    <name>core/popup</name>
    <message>
        <source>Pop-up</source>
        <translation>نافذة منبثقة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>مفتوحة</translation>
    </message>
    <message>
        <source>Whether the pop-up is shown now.</source>
        <translation>هل تُعرض النافذة المنبثقة الآن.</translation>
    </message>
    <message>
        <source>Open at the start</source>
        <translation>مفتوحة عند البداية</translation>
    </message>
    <message>
        <source>Whether the pop-up is open when the model starts.</source>
        <translation>هل تكون النافذة المنبثقة مفتوحة عند بدء النموذج.</translation>
    </message>
</context>
<context>
    <name>core/scene</name>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
</context>
<context>
    <name>core/space</name>
    <message>
        <source>Space</source>
        <translation>فضاء</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the space.</source>
        <translation>اسم قصير بلا مسافات تشير به الأشياء الأخرى إلى الفضاء.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>The heading shown above the space.</source>
        <translation>العنوان المعروض فوق الفضاء.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>عرض الفضاء وارتفاعه.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>اللون خلف القطع.</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>الشبكة معروضة</translation>
    </message>
    <message>
        <source>Whether a grid of 5 mm is drawn behind the parts.</source>
        <translation>هل تُرسم شبكة من 5 مم خلف القطع.</translation>
    </message>
</context>
<context>
    <name>core/subpart</name>
    <message>
        <source>Subpart</source>
        <translation>قطعة فرعية</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>الأدوار</translation>
    </message>
    <message>
        <source>What the subpart is to its part, where that differs from its class.</source>
        <translation>ما تمثله القطعة الفرعية لقطعتها، حيث يختلف عن صنفها.</translation>
    </message>
</context>
<context>
    <name>core/text</name>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>ما كُتب؛ يُلف عند عرض القطعة.</translation>
    </message>
    <message>
        <source>Letter height</source>
        <translation>ارتفاع الحروف</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>ارتفاع سطر من النص.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>عريض</translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation>هل الحروف عريضة.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Whether the letters slope.</source>
        <translation>هل الحروف مائلة.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>مؤطرة</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the text.</source>
        <translation>هل يُرسم إطار رفيع حول النص.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>المحاذاة</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>أين تكون الأسطر ضمن العرض.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>center</source>
        <translation>وسط</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>لون الحروف.</translation>
    </message>
</context>
<context>
    <name>electronics/*</name>
    <message>
        <source>Electronics</source>
        <translation>إلكترونيات</translation>
    </message>
    <message>
        <source>Current shown</source>
        <translation>التيار معروض</translation>
    </message>
    <message>
        <source>Whether moving dots show the current in the wires.</source>
        <translation>هل تبين نقاط متحركة التيار في الأسلاك.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>الرموز</translation>
    </message>
    <message>
        <source>Which family of circuit symbols is drawn.</source>
        <translation>أي عائلة من رموز الدوائر تُرسم.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>أوروبية</translation>
    </message>
    <message>
        <source>American</source>
        <translation>أمريكية</translation>
    </message>
</context>
<context>
    <name>electronics/battery</name>
    <message>
        <source>Battery</source>
        <translation>بطارية</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>الجهد</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>جهد البطارية الجديدة.</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>الخلايا</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>من كم خلية تتكون البطارية.</translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>المقاومة الداخلية</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>مقاومة البطارية نفسها.</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>أطراف التوصيل</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>كيف توصل الأسلاك بالبطارية.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>كباس</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>مشبك</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>سلك</translation>
    </message>
    <message>
        <source>Polarity shown</source>
        <translation>القطبية معروضة</translation>
    </message>
    <message>
        <source>Whether plus and minus are drawn at the pins.</source>
        <translation>هل يُرسم الموجب والسالب عند الأطراف.</translation>
    </message>
    <message>
        <source>Rechargeable</source>
        <translation>قابلة للشحن</translation>
    </message>
    <message>
        <source>Whether the battery can be charged again.</source>
        <translation>هل يمكن إعادة شحن البطارية.</translation>
    </message>
</context>
<context>
    <name>electronics/block</name>
    <message>
        <source>Logic block</source>
        <translation>كتلة منطقية</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>العملية</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>كيف تحسب الكتلة خرجها من مداخلها.</translation>
    </message>
    <message>
        <source>AND</source>
        <translation>و</translation>
    </message>
    <message>
        <source>OR</source>
        <translation>أو</translation>
    </message>
    <message>
        <source>NOT</source>
        <translation>ليس</translation>
    </message>
    <message>
        <source>NAND</source>
        <translation>NAND</translation>
    </message>
    <message>
        <source>NOR</source>
        <translation>NOR</translation>
    </message>
    <message>
        <source>XOR</source>
        <translation>XOR</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>خرج معكوس</translation>
    </message>
    <message>
        <source>Whether the output is turned round.</source>
        <translation>هل يُعكس الخرج.</translation>
    </message>
    <message>
        <source>Truth table shown</source>
        <translation>جدول الصواب معروض</translation>
    </message>
    <message>
        <source>Whether the truth table is drawn below the block.</source>
        <translation>هل يُرسم جدول الصواب تحت الكتلة.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>الرموز</translation>
    </message>
    <message>
        <source>A box with a sign, or the curved shapes.</source>
        <translation>صندوق عليه علامة، أو الأشكال المنحنية.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>أوروبية</translation>
    </message>
    <message>
        <source>American</source>
        <translation>أمريكية</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>التأخير</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>كم يستغرق الخرج ليتبع المداخل.</translation>
    </message>
    <message>
        <source>Input names</source>
        <translation>أسماء المداخل</translation>
    </message>
    <message>
        <source>What is written beside the inputs, from top to bottom.</source>
        <translation>ما يُكتب بجانب المداخل، من أعلى إلى أسفل.</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>جدول الصواب</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>الخرج لكل تركيب من المداخل.</translation>
    </message>
    <message>
        <source>NOT AND</source>
        <translation>ليس و</translation>
    </message>
    <message>
        <source>NOT OR</source>
        <translation>ليس أو</translation>
    </message>
    <message>
        <source>EITHER OR</source>
        <translation>إما أو</translation>
    </message>
</context>
<context>
    <name>electronics/buzzer</name>
    <message>
        <source>Buzzer</source>
        <translation>طنان</translation>
    </message>
    <message>
        <source>Sounds at the start</source>
        <translation>يصدر صوتًا عند البداية</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds when the model starts.</source>
        <translation>هل يصدر الطنان صوتًا عند بدء النموذج.</translation>
    </message>
    <message>
        <source>Pulsed</source>
        <translation>متقطع</translation>
    </message>
    <message>
        <source>Whether the sound goes on and off.</source>
        <translation>هل يعمل الصوت وينقطع.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>علو الصوت</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds softly or loudly.</source>
        <translation>هل صوت الطنان خافت أم عالٍ.</translation>
    </message>
    <message>
        <source>soft</source>
        <translation>خافت</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>عالٍ</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>التردد</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>مدى حدة النغمة.</translation>
    </message>
    <message>
        <source>Melody</source>
        <translation>اللحن</translation>
    </message>
    <message>
        <source>The notes that are played in turn, as numbers of half tones; 60 is the middle C.</source>
        <translation>النغمات التي تُعزف بالتناوب، بأرقام أنصاف النغمات؛ 60 هي دو الوسطى.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>العلامة</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>الصورة التي تمثل الصوت.</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>جرس</translation>
    </message>
    <message>
        <source>Horn</source>
        <translation>بوق</translation>
    </message>
    <message>
        <source>Siren</source>
        <translation>صفارة إنذار</translation>
    </message>
    <message>
        <source>Pictures while sounding</source>
        <translation>الصور أثناء الصوت</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>صور تُعرض بالتناوب أثناء صوت الطنان.</translation>
    </message>
</context>
<context>
    <name>electronics/case</name>
    <message>
        <source>Case</source>
        <translation>العلبة</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>شفافة</translation>
    </message>
    <message>
        <source>Whether what lies behind the case is seen.</source>
        <translation>هل يُرى ما خلف العلبة.</translation>
    </message>
</context>
<context>
    <name>electronics/component</name>
    <message>
        <source>Component</source>
        <translation>مكوّن</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>المرجع</translation>
    </message>
    <message>
        <source>Letters and number by which the component is called in the circuit, for example R1.</source>
        <translation>الحروف والرقم التي يُسمى بها المكوّن في الدائرة، مثل R1.</translation>
    </message>
    <message>
        <source>Reference shown</source>
        <translation>المرجع معروض</translation>
    </message>
    <message>
        <source>Whether the reference is written beside the component.</source>
        <translation>هل يُكتب المرجع بجانب المكوّن.</translation>
    </message>
    <message>
        <source>Value shown</source>
        <translation>القيمة معروضة</translation>
    </message>
    <message>
        <source>Whether the main value is written beside the component.</source>
        <translation>هل تُكتب القيمة الرئيسية بجانب المكوّن.</translation>
    </message>
    <message>
        <source>Label place</source>
        <translation>مكان العنوان</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the centre.</source>
        <translation>أين يكون العنوان، كما يُرى من المركز.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>اسم الخرج</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the component; empty when none does.</source>
        <translation>الاسم الذي تبدّل به المخططات المكوّن؛ فارغ حين لا يفعل أي منها.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>المستوى الآن</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the component on, in percent; -1 while none has.</source>
        <translation>بأي قوة شغّل مخطط عامل المكوّن، بالمئة؛ -1 ما لم يفعل أي منها.</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>معطل</translation>
    </message>
    <message>
        <source>A broken component lets no current through.</source>
        <translation>المكوّن المعطل لا يمرر تيارًا.</translation>
    </message>
</context>
<context>
    <name>electronics/control</name>
    <message>
        <source>Control</source>
        <translation>عنصر تحكم</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>الضبط</translation>
    </message>
    <message>
        <source>Where the control stands, in percent.</source>
        <translation>أين يقف عنصر التحكم، بالمئة.</translation>
    </message>
    <message>
        <source>Can be worked</source>
        <translation>قابل للتحريك</translation>
    </message>
    <message>
        <source>Whether the reader may move the control while the model runs.</source>
        <translation>هل يمكن للقارئ تحريك عنصر التحكم أثناء تشغيل النموذج.</translation>
    </message>
</context>
<context>
    <name>electronics/led</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>لون الضوء.</translation>
    </message>
    <message>
        <source>Lit at the start</source>
        <translation>مضاء عند البداية</translation>
    </message>
    <message>
        <source>Whether the LED shines when the model starts.</source>
        <translation>هل يضيء LED عند بدء النموذج.</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>وامض</translation>
    </message>
    <message>
        <source>Whether the LED goes on and off by itself.</source>
        <translation>هل يضيء LED وينطفئ من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>العدسة</translation>
    </message>
    <message>
        <source>Clear lenses throw a narrow beam, milky ones shine all round.</source>
        <translation>العدسات الصافية تلقي حزمة ضيقة، والحليبية تضيء من كل الجهات.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>شفافة</translation>
    </message>
    <message>
        <source>Milky</source>
        <translation>حليبية</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>مدى سطوع LED، بالمئة.</translation>
    </message>
    <message>
        <source>Blink period</source>
        <translation>دور الوميض</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>الزمن من ومضة إلى التالية.</translation>
    </message>
    <message>
        <source>Blink pattern</source>
        <translation>نمط الوميض</translation>
    </message>
    <message>
        <source>Times in seconds for which the LED is on and off in turn.</source>
        <translation>أزمنة بالثواني يضيء فيها LED وينطفئ بالتناوب.</translation>
    </message>
    <message>
        <source>Forward voltage</source>
        <translation>الجهد الأمامي</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>الجهد الذي يبدأ عنده LED بالإضاءة.</translation>
    </message>
    <message>
        <source>Greatest current</source>
        <translation>أكبر تيار</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>التيار الأكبر يتلف LED.</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>القطر</translation>
    </message>
    <message>
        <source>The diameter of the lens.</source>
        <translation>قطر العدسة.</translation>
    </message>
</context>
<context>
    <name>electronics/light-sensor</name>
    <message>
        <source>Light sensor</source>
        <translation>مستشعر ضوء</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>الضوء</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>مدى السطوع عند البداية، بالمئة.</translation>
    </message>
    <message>
        <source>Switches at</source>
        <translation>يبدّل عند</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>السطوع الذي يعده المستشعر ظلامًا.</translation>
    </message>
    <message>
        <source>Signal when</source>
        <translation>الإشارة عند</translation>
    </message>
    <message>
        <source>Whether the sensor gives its signal in the dark or in the light.</source>
        <translation>هل يعطي المستشعر إشارته في الظلام أم في الضوء.</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>ظلام</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>ضوء</translation>
    </message>
    <message>
        <source>Follows its slider</source>
        <translation>يتبع منزلقه</translation>
    </message>
    <message>
        <source>Whether the reader sets the brightness with the slider.</source>
        <translation>هل يضبط القارئ السطوع بالمنزلق.</translation>
    </message>
    <message>
        <source>Resistance in the dark</source>
        <translation>المقاومة في الظلام</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>المقاومة حين لا يسقط ضوء على المستشعر.</translation>
    </message>
    <message>
        <source>Resistance in the light</source>
        <translation>المقاومة في الضوء</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>المقاومة في الضوء الكامل.</translation>
    </message>
    <message>
        <source>Characteristic</source>
        <translation>المنحنى المميز</translation>
    </message>
    <message>
        <source>Pairs of brightness in lux and resistance in ohms between which the sensor interpolates.</source>
        <translation>أزواج من السطوع باللوكس والمقاومة بالأوم يستكمل المستشعر بينها.</translation>
    </message>
</context>
<context>
    <name>electronics/meter</name>
    <message>
        <source>Meter</source>
        <translation>جهاز قياس</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>يقيس</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>ما يقيسه الجهاز.</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>الجهد</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>التيار</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>المقاومة</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Figures, or a needle over a scale.</source>
        <translation>أرقام، أو مؤشر فوق تدريج.</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>رقمي</translation>
    </message>
    <message>
        <source>needle</source>
        <translation>مؤشر</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Whether the reading stays as it is.</source>
        <translation>هل تبقى القراءة كما هي.</translation>
    </message>
    <message>
        <source>Peak shown</source>
        <translation>الذروة معروضة</translation>
    </message>
    <message>
        <source>Whether the greatest reading so far is shown as well.</source>
        <translation>هل تُعرض أكبر قراءة حتى الآن أيضًا.</translation>
    </message>
    <message>
        <source>Needle colour</source>
        <translation>لون المؤشر</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>لون المؤشر.</translation>
    </message>
    <message>
        <source>Measures at</source>
        <translation>يقيس عند</translation>
    </message>
    <message>
        <source>The pin at which the meter measures.</source>
        <translation>الطرف الذي يقيس عنده الجهاز.</translation>
    </message>
    <message>
        <source>Scale marks</source>
        <translation>علامات التدريج</translation>
    </message>
    <message>
        <source>Where the scale has long marks, in the quantity&apos;s basic unit.</source>
        <translation>أين تكون للتدريج علامات طويلة، بالوحدة الأساسية للكمية.</translation>
    </message>
    <message>
        <source>Voltage (V)</source>
        <translation>الجهد (V)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>التيار (A)</translation>
    </message>
    <message>
        <source>Resistance (Ω)</source>
        <translation>المقاومة (Ω)</translation>
    </message>
</context>
<context>
    <name>electronics/pad</name>
    <message>
        <source>Solder pad</source>
        <translation>نقطة لحام</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>الشكل</translation>
    </message>
    <message>
        <source>The outline of the copper.</source>
        <translation>محيط النحاس.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>مستدير</translation>
    </message>
    <message>
        <source>square</source>
        <translation>مربع</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>بيضوي</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>القطر</translation>
    </message>
    <message>
        <source>How wide the copper is.</source>
        <translation>عرض النحاس.</translation>
    </message>
    <message>
        <source>Plated through</source>
        <translation>مبطن بالمعدن</translation>
    </message>
    <message>
        <source>Whether the hole is lined with metal.</source>
        <translation>هل بُطّن الثقب بالمعدن.</translation>
    </message>
</context>
<context>
    <name>electronics/pin</name>
    <message>
        <source>Pin</source>
        <translation>طرف</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>القطبية</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs here, if it matters.</source>
        <translation>أي قطب من التغذية يخص هذا المكان، إن كان ذلك مهمًا.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>positive</source>
        <translation>موجب</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>سالب</translation>
    </message>
    <message>
        <source>Name shown</source>
        <translation>الاسم معروض</translation>
    </message>
    <message>
        <source>Whether the pin&apos;s name is written beside it.</source>
        <translation>هل يُكتب اسم الطرف بجانبه.</translation>
    </message>
</context>
<context>
    <name>electronics/push-button</name>
    <message>
        <source>Push button</source>
        <translation>زر ضغط</translation>
    </message>
    <message>
        <source>Cap colour</source>
        <translation>لون الغطاء</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>لون الغطاء.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>يضيء</translation>
    </message>
    <message>
        <source>Whether a lamp in the cap shines while the button is held.</source>
        <translation>هل يضيء مصباح في الغطاء ما دام الزر مضغوطًا.</translation>
    </message>
</context>
<context>
    <name>electronics/resistor</name>
    <message>
        <source>Resistor</source>
        <translation>مقاوم</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>المقاومة</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>المقاومة كما طُبعت على القطعة.</translation>
    </message>
    <message>
        <source>Tolerance in %</source>
        <translation>التفاوت بالمئة %</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>كم يمكن أن تبتعد المقاومة الحقيقية عن المطبوعة، بالمئة.</translation>
    </message>
    <message>
        <source>Power rating</source>
        <translation>القدرة المقدرة</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>القدرة التي تتحملها القطعة دون أن تحترق.</translation>
    </message>
    <message>
        <source>Colour bands</source>
        <translation>الحلقات الملونة</translation>
    </message>
    <message>
        <source>Whether the colour bands are drawn.</source>
        <translation>هل تُرسم الحلقات الملونة.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>الرمز</translation>
    </message>
    <message>
        <source>The box, or the zigzag line.</source>
        <translation>الصندوق، أو الخط المتعرج.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>أوروبية</translation>
    </message>
    <message>
        <source>American</source>
        <translation>أمريكية</translation>
    </message>
</context>
<context>
    <name>electronics/switch</name>
    <message>
        <source>Switch</source>
        <translation>مفتاح كهربائي</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>مغلق</translation>
    </message>
    <message>
        <source>Whether the switch lets current through at the start.</source>
        <translation>هل يمرر المفتاح التيار عند البداية.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>يرتد</translation>
    </message>
    <message>
        <source>Whether the switch stays closed only while it is held.</source>
        <translation>هل يبقى المفتاح مغلقًا ما دام مضغوطًا فقط.</translation>
    </message>
    <message>
        <source>Lever side</source>
        <translation>جهة الذراع</translation>
    </message>
    <message>
        <source>On which side the lever has its hinge.</source>
        <translation>في أي جهة مفصل الذراع.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Contact resistance</source>
        <translation>مقاومة التلامس</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>مقاومة التلامس المغلق.</translation>
    </message>
    <message>
        <source>Bounce time</source>
        <translation>زمن الارتداد</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>كم يرتجف التلامس عند إغلاقه.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>المفتاح الذي يشغّل القاطع أثناء تشغيل النموذج؛ حرف كبير واحد أو رقم.</translation>
    </message>
</context>
<context>
    <name>electronics/wire</name>
    <message>
        <source>Wire</source>
        <translation>سلك</translation>
    </message>
    <message>
        <source>Insulated</source>
        <translation>معزول</translation>
    </message>
    <message>
        <source>Whether the wire has a coloured cover.</source>
        <translation>هل للسلك غلاف ملون.</translation>
    </message>
    <message>
        <source>Stranded</source>
        <translation>مجدول</translation>
    </message>
    <message>
        <source>Whether the wire is made of many thin ones.</source>
        <translation>هل صُنع السلك من أسلاك رفيعة كثيرة.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Along right angles, or straight from pin to pin.</source>
        <translation>بزوايا قائمة، أو مستقيمًا من طرف إلى طرف.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>مستقيم</translation>
    </message>
    <message>
        <source>square</source>
        <translation>بزوايا قائمة</translation>
    </message>
    <message>
        <source>Cross-section in mm²</source>
        <translation>المقطع بالمم²</translation>
    </message>
    <message>
        <source>The copper&apos;s cross-section in square millimetres.</source>
        <translation>مقطع النحاس بالمليمتر المربع.</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>الانحناءات</translation>
    </message>
    <message>
        <source>The points over which the wire runs, from its beginning to its end.</source>
        <translation>النقاط التي يمر بها السلك، من بدايته إلى نهايته.</translation>
    </message>
</context>
<context>
    <name>flowcharts/*</name>
    <message>
        <source>Flowcharts</source>
        <translation>المخططات الانسيابية</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>بأي سرعة تعمل مخططات الفضاء.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>سريع</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>بطيء</translation>
    </message>
    <message>
        <source>Manual step</source>
        <translation>خطوة يدوية</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>خطوة</translation>
    </message>
    <message>
        <source>Held down to run the next block at the speed Manual step.</source>
        <translation>يُضغط باستمرار لتنفيذ الكتلة التالية عند السرعة خطوة يدوية.</translation>
    </message>
</context>
<context>
    <name>flowcharts/block</name>
    <message>
        <source>Flowchart block</source>
        <translation>كتلة مخطط انسيابي</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>التعليق</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>ملاحظة لقراء المخطط.</translation>
    </message>
    <message>
        <source>Comment shown</source>
        <translation>التعليق معروض</translation>
    </message>
    <message>
        <source>Whether the remark is written beside the block.</source>
        <translation>هل تُكتب الملاحظة بجانب الكتلة.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>يضيء</translation>
    </message>
    <message>
        <source>Whether the block lights up while it runs.</source>
        <translation>هل تضيء الكتلة أثناء تشغيلها.</translation>
    </message>
    <message>
        <source>Stops here</source>
        <translation>يتوقف هنا</translation>
    </message>
    <message>
        <source>Whether the chart halts before the block, until it is stepped on.</source>
        <translation>هل يتوقف المخطط قبل الكتلة حتى يُخطى إليها.</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>تعمل الآن</translation>
    </message>
    <message>
        <source>Whether a running chart is at the block.</source>
        <translation>هل مخطط عامل عند الكتلة.</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>التعبئة</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>اللون داخل الكتلة.</translation>
    </message>
</context>
<context>
    <name>flowcharts/decision</name>
    <message>
        <source>Decision</source>
        <translation>قرار</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>المدخل</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>اسم خرج المفتاح أو المستشعر المسؤول عنه.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>السؤال</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>ما يُسأل عن المدخل.</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>مُشغَّل</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>مُطفأ</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>أكبر من</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>أصغر من</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>يقارن بـ</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>العدد الذي يقارن به المدخل.</translation>
    </message>
    <message>
        <source>Yes branch</source>
        <translation>فرع نعم</translation>
    </message>
    <message>
        <source>Where the chart goes on when the answer is yes.</source>
        <translation>أين يتابع المخطط إذا كان الجواب نعم.</translation>
    </message>
    <message>
        <source>down</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Asks until yes</source>
        <translation>يسأل حتى نعم</translation>
    </message>
    <message>
        <source>Whether the block waits until the answer is yes.</source>
        <translation>هل تنتظر الكتلة حتى يكون الجواب نعم.</translation>
    </message>
    <message>
        <source>Answers shown</source>
        <translation>الأجوبة معروضة</translation>
    </message>
    <message>
        <source>Whether Yes and No are written at the branches.</source>
        <translation>هل يُكتب نعم ولا عند الفروع.</translation>
    </message>
    <message>
        <source>Watched part</source>
        <translation>القطعة المراقَبة</translation>
    </message>
    <message>
        <source>The part whose state is asked when no input is named.</source>
        <translation>القطعة التي يُسأل عن حالتها حين لا يُسمى مدخل.</translation>
    </message>
    <message>
        <source>is on?</source>
        <translation>مُشغَّل؟</translation>
    </message>
    <message>
        <source>is off?</source>
        <translation>مُطفأ؟</translation>
    </message>
</context>
<context>
    <name>flowcharts/link</name>
    <message>
        <source>Link</source>
        <translation>الارتباط</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>السهم</translation>
    </message>
    <message>
        <source>Whether the end has an arrow head.</source>
        <translation>هل للنهاية رأس سهم.</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>متقطع</translation>
    </message>
    <message>
        <source>Whether the line is dashed.</source>
        <translation>هل الخط متقطع.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Straight from block to block, or along right angles.</source>
        <translation>مستقيمًا من كتلة إلى كتلة، أو بزوايا قائمة.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>بزوايا قائمة</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>مستقيم</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>الانحناءات</translation>
    </message>
    <message>
        <source>The points over which the line runs, from its beginning to its end.</source>
        <translation>النقاط التي يمر بها الخط، من بدايته إلى نهايته.</translation>
    </message>
</context>
<context>
    <name>flowcharts/procedure</name>
    <message>
        <source>Procedure</source>
        <translation>إجراء</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>التكرارات</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>كم مرة يُشغَّل المخطط في النافذة المنبثقة.</translation>
    </message>
    <message>
        <source>Opens while it runs</source>
        <translation>يُفتح أثناء تشغيله</translation>
    </message>
    <message>
        <source>Whether the pop-up with the chart opens while the procedure runs.</source>
        <translation>هل تُفتح النافذة المنبثقة بالمخطط أثناء تشغيل الإجراء.</translation>
    </message>
    <message>
        <source>Ends alone</source>
        <translation>ينتهي وحده</translation>
    </message>
    <message>
        <source>Whether a stop block inside ends only the procedure rather than the whole chart.</source>
        <translation>هل تنهي كتلة توقف بداخله الإجراء وحده لا المخطط كله.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعاملات</translation>
    </message>
    <message>
        <source>The names of the numbers handed to the procedure.</source>
        <translation>أسماء الأعداد الممررة إلى الإجراء.</translation>
    </message>
</context>
<context>
    <name>flowcharts/start</name>
    <message>
        <source>Start</source>
        <translation>بداية</translation>
    </message>
    <message>
        <source>Starts by itself</source>
        <translation>يبدأ من تلقاء نفسه</translation>
    </message>
    <message>
        <source>Whether the chart runs as soon as the model starts.</source>
        <translation>هل يعمل المخطط بمجرد بدء النموذج.</translation>
    </message>
    <message>
        <source>Starts when</source>
        <translation>يبدأ عند</translation>
    </message>
    <message>
        <source>Whether one or all of the named inputs must be on for the chart to start.</source>
        <translation>هل يجب أن يكون واحد من المداخل المسماة أو كلها مُشغَّلًا ليبدأ المخطط.</translation>
    </message>
    <message>
        <source>any input</source>
        <translation>أي مدخل</translation>
    </message>
    <message>
        <source>all inputs</source>
        <translation>كل المداخل</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>مداخل</translation>
    </message>
    <message>
        <source>The names of the switches and sensors that start the chart.</source>
        <translation>أسماء المفاتيح والمستشعرات التي تبدأ المخطط.</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>التأخير</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>كم ينتظر المخطط قبل كتلته الأولى.</translation>
    </message>
</context>
<context>
    <name>flowcharts/step</name>
    <message>
        <source>Step</source>
        <translation>خطوة</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>الفعل</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>ما تفعله الكتلة بخرجها.</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>تبديل</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>وميض</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>تلاشٍ</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>انتظار</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>الخرج</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>اسم خرج المكونات التي تبدّلها الكتلة.</translation>
    </message>
    <message>
        <source>Switches on</source>
        <translation>يشغّل</translation>
    </message>
    <message>
        <source>Whether the block switches the output on rather than off.</source>
        <translation>هل تشغّل الكتلة الخرج بدلًا من إطفائه.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>ينتظر</translation>
    </message>
    <message>
        <source>Whether the chart goes on only when the time is over.</source>
        <translation>هل لا يتابع المخطط إلا بعد انقضاء الوقت.</translation>
    </message>
    <message>
        <source>Other outputs</source>
        <translation>المخارج الأخرى</translation>
    </message>
    <message>
        <source>Whether all other outputs are switched off at the same time.</source>
        <translation>هل تُطفأ كل المخارج الأخرى في الوقت نفسه.</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>بلا تغيير</translation>
    </message>
    <message>
        <source>off</source>
        <translation>مطفأة</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الزمن</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>كم تستغرق الخطوة.</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>الشدة</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>بأي قوة يُشغَّل الخرج، بالمئة.</translation>
    </message>
    <message>
        <source>More outputs</source>
        <translation>مخارج إضافية</translation>
    </message>
    <message>
        <source>Further outputs, each with the state that it takes.</source>
        <translation>مخارج إضافية، كل منها بالحالة التي يأخذها.</translation>
    </message>
    <message>
        <source>Wait only</source>
        <translation>انتظار فقط</translation>
    </message>
</context>
<context>
    <name>flowcharts/stop</name>
    <message>
        <source>Stop</source>
        <translation>توقف</translation>
    </message>
    <message>
        <source>Starts again</source>
        <translation>يبدأ من جديد</translation>
    </message>
    <message>
        <source>Whether the chart begins again from its start.</source>
        <translation>هل يبدأ المخطط من جديد من بدايته.</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>مخارج</translation>
    </message>
    <message>
        <source>Whether the outputs stay as they are at the end, or are switched off.</source>
        <translation>هل تبقى المخارج كما هي في النهاية، أم تُطفأ.</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>إبقاء</translation>
    </message>
    <message>
        <source>switch off</source>
        <translation>إطفاء</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>ما يُعرض للقارئ في النهاية.</translation>
    </message>
</context>
<context>
    <name>flowcharts/terminal</name>
    <message>
        <source>Terminal</source>
        <translation>طرفية</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Whether the chart comes in or goes out here.</source>
        <translation>هل يدخل المخطط هنا أم يخرج.</translation>
    </message>
    <message>
        <source>in</source>
        <translation>دخول</translation>
    </message>
    <message>
        <source>out</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>Arrow shown</source>
        <translation>السهم معروض</translation>
    </message>
    <message>
        <source>Whether an arrow head is drawn at the terminal.</source>
        <translation>هل يُرسم رأس سهم عند الطرفية.</translation>
    </message>
</context>
<context>
    <name>mechanics/axle</name>
    <message>
        <source>Axle</source>
        <translation>محور</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>القطر</translation>
    </message>
    <message>
        <source>The diameter of the axle.</source>
        <translation>قطر المحور.</translation>
    </message>
    <message>
        <source>Runs freely</source>
        <translation>يدور بحرية</translation>
    </message>
    <message>
        <source>Whether the wheel turns on the axle rather than with it.</source>
        <translation>هل تدور العجلة على المحور لا معه.</translation>
    </message>
</context>
<context>
    <name>mechanics/belt</name>
    <message>
        <source>Belt</source>
        <translation>سير</translation>
    </message>
    <message>
        <source>Crossed</source>
        <translation>متقاطع</translation>
    </message>
    <message>
        <source>Whether the belt is crossed, so that the wheels turn against each other.</source>
        <translation>هل السير متقاطع، بحيث تدور العجلات في اتجاهين متعاكسين.</translation>
    </message>
    <message>
        <source>Toothed</source>
        <translation>مسنن</translation>
    </message>
    <message>
        <source>Whether the belt has teeth and cannot slip.</source>
        <translation>هل للسير أسنان فلا ينزلق.</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>المادة</translation>
    </message>
    <message>
        <source>Rubber that stretches, or cord that does not.</source>
        <translation>مطاط يتمدد، أو حبل لا يتمدد.</translation>
    </message>
    <message>
        <source>rubber</source>
        <translation>مطاط</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>حبل</translation>
    </message>
</context>
<context>
    <name>mechanics/cam</name>
    <message>
        <source>Cam</source>
        <translation>كامة</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>الشكل الجانبي</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>محيط الكامة.</translation>
    </message>
    <message>
        <source>Pear</source>
        <translation>كمثرى</translation>
    </message>
    <message>
        <source>Eccentric circle</source>
        <translation>دائرة لامركزية</translation>
    </message>
    <message>
        <source>Snail</source>
        <translation>حلزون</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>الرفع</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>كم تحرك الكامة تابعها.</translation>
    </message>
    <message>
        <source>Return spring</source>
        <translation>نابض إرجاع</translation>
    </message>
    <message>
        <source>Whether a spring presses the follower on the cam.</source>
        <translation>هل يضغط نابض التابع على الكامة.</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>التابع</translation>
    </message>
    <message>
        <source>A flat foot, or a roller.</source>
        <translation>قدم مسطحة، أو بكرة.</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>مسطح</translation>
    </message>
    <message>
        <source>roller</source>
        <translation>بكرة</translation>
    </message>
    <message>
        <source>Lift table</source>
        <translation>جدول الرفع</translation>
    </message>
    <message>
        <source>The lift in millimetres at some angles in degrees.</source>
        <translation>الرفع بالمليمتر عند بعض الزوايا بالدرجات.</translation>
    </message>
</context>
<context>
    <name>mechanics/gear</name>
    <message>
        <source>Gear</source>
        <translation>ترس</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>أسنان</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>عدد الأسنان.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>المعامل</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>قطر الخطوة مقسومًا على عدد الأسنان؛ التروس المتعشقة لها القيمة نفسها.</translation>
    </message>
    <message>
        <source>Pressure angle</source>
        <translation>زاوية الضغط</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>الزاوية التي تضغط بها الأسنان بعضها على بعض.</translation>
    </message>
    <message>
        <source>Face width</source>
        <translation>عرض الوجه</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>عرض الأسنان على طول المحور.</translation>
    </message>
    <message>
        <source>Teeth drawn</source>
        <translation>الأسنان مرسومة</translation>
    </message>
    <message>
        <source>Whether the teeth are drawn, or only the pitch circle.</source>
        <translation>هل تُرسم الأسنان، أم دائرة الخطوة فقط.</translation>
    </message>
    <message>
        <source>Slanting teeth</source>
        <translation>أسنان مائلة</translation>
    </message>
    <message>
        <source>Whether the teeth stand aslant to the axle.</source>
        <translation>هل الأسنان مائلة على المحور.</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>جهة الميل</translation>
    </message>
    <message>
        <source>Which way slanting teeth lean.</source>
        <translation>إلى أي جهة تميل الأسنان المائلة.</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Meshes with</source>
        <translation>يتعشق مع</translation>
    </message>
    <message>
        <source>The gear whose teeth these ones drive.</source>
        <translation>الترس الذي تدفع هذه الأسنان أسنانه.</translation>
    </message>
    <message>
        <source>Hub offset</source>
        <translation>إزاحة السرة</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>كم تبعد السرة عن وسط العجلة.</translation>
    </message>
</context>
<context>
    <name>mechanics/machine-part</name>
    <message>
        <source>Machine part</source>
        <translation>قطعة آلة</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>المادة</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>مم صُنعت القطعة.</translation>
    </message>
    <message>
        <source>Acetal</source>
        <translation>أسيتال</translation>
    </message>
    <message>
        <source>Nylon</source>
        <translation>نايلون</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>خشب</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>نحاس أصفر</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>فولاذ</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>الكتلة</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>كتلة القطعة.</translation>
    </message>
    <message>
        <source>Held fast</source>
        <translation>مثبتة</translation>
    </message>
    <message>
        <source>Whether the part is fixed to the base and cannot turn.</source>
        <translation>هل القطعة مثبتة على القاعدة فلا تدور.</translation>
    </message>
    <message>
        <source>Direction shown</source>
        <translation>الجهة معروضة</translation>
    </message>
    <message>
        <source>Whether an arrow shows the way the part turns.</source>
        <translation>هل يبين سهم جهة دوران القطعة.</translation>
    </message>
    <message>
        <source>Speed shown</source>
        <translation>السرعة معروضة</translation>
    </message>
    <message>
        <source>Whether the turning speed is written on the part.</source>
        <translation>هل تُكتب سرعة الدوران على القطعة.</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>لون القطعة.</translation>
    </message>
</context>
<context>
    <name>mechanics/motor</name>
    <message>
        <source>Motor</source>
        <translation>محرك</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>يدور عند البداية</translation>
    </message>
    <message>
        <source>Whether the motor runs when the model starts.</source>
        <translation>هل يدور المحرك عند بدء النموذج.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Which way the motor turns.</source>
        <translation>في أي جهة يدور المحرك.</translation>
    </message>
    <message>
        <source>clockwise</source>
        <translation>باتجاه عقارب الساعة</translation>
    </message>
    <message>
        <source>counterclockwise</source>
        <translation>عكس عقارب الساعة</translation>
    </message>
    <message>
        <source>With gear box</source>
        <translation>مع علبة تروس</translation>
    </message>
    <message>
        <source>Whether a gear box is built in.</source>
        <translation>هل علبة تروس مدمجة.</translation>
    </message>
    <message>
        <source>Gear box ratio</source>
        <translation>نسبة علبة التروس</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>كم دورة للمحرك تعطي دورة واحدة للعمود.</translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation>جهد التغذية</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>الجهد الذي صُنع المحرك له.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>بأي سرعة يدور المحرك بلا حمل.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>اسم الخرج</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>الاسم الذي تبدّل به المخططات المحرك؛ فارغ حين لا يفعل أي منها.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>المستوى الآن</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the motor on, in percent; -1 while none has.</source>
        <translation>بأي قوة شغّل مخطط عامل المحرك، بالمئة؛ -1 ما لم يفعل أي منها.</translation>
    </message>
    <message>
        <source>Powered by</source>
        <translation>يتغذى من</translation>
    </message>
    <message>
        <source>The battery that drives the motor.</source>
        <translation>البطارية التي تدفع المحرك.</translation>
    </message>
</context>
<context>
    <name>mechanics/pulley</name>
    <message>
        <source>Pulley</source>
        <translation>بكرة سير</translation>
    </message>
    <message>
        <source>Groove diameter</source>
        <translation>قطر الأخدود</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>القطر الذي يسير عليه السير.</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>الأخدود</translation>
    </message>
    <message>
        <source>The shape of the groove.</source>
        <translation>شكل الأخدود.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>مستدير</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>With rims</source>
        <translation>مع حواف</translation>
    </message>
    <message>
        <source>Whether rims keep the belt in the groove.</source>
        <translation>هل تبقي حواف السير في الأخدود.</translation>
    </message>
    <message>
        <source>Belt slips</source>
        <translation>السير ينزلق</translation>
    </message>
    <message>
        <source>Whether the belt may slip when the load is too great.</source>
        <translation>هل قد ينزلق السير إذا كان الحمل أكبر من اللازم.</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>الدرجات</translation>
    </message>
    <message>
        <source>The groove diameters of a stepped pulley in metres, the greatest first.</source>
        <translation>أقطار أخاديد بكرة متدرجة بالأمتار، الأكبر أولًا.</translation>
    </message>
</context>
<context>
    <name>mechanics/shaft</name>
    <message>
        <source>Shaft</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>القطر</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>قطر العمود.</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>أجوف</translation>
    </message>
    <message>
        <source>Whether the shaft is a tube.</source>
        <translation>هل العمود أنبوب.</translation>
    </message>
    <message>
        <source>With key</source>
        <translation>مع خابور</translation>
    </message>
    <message>
        <source>Whether a key makes the wheels turn with the shaft.</source>
        <translation>هل يجعل خابور العجلات تدور مع العمود.</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>الأطراف</translation>
    </message>
    <message>
        <source>Plain ends, or rounded ones.</source>
        <translation>أطراف مستوية، أو مستديرة.</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>مستوية</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>مستديرة</translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation>المحامل</translation>
    </message>
    <message>
        <source>Where the shaft is held, seen from its centre.</source>
        <translation>أين يُمسك العمود، كما يُرى من مركزه.</translation>
    </message>
    <message>
        <source>Twist</source>
        <translation>الالتواء</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>كم يلتوي العمود تحت الحمل الكامل.</translation>
    </message>
</context>
</TS>
