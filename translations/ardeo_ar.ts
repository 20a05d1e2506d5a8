<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>ardeo::ActionHeader</name>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>تحديث قائمة المحولات</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>جارٍ التطبيق…</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>تطبيق التهيئة</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterPropertiesCard</name>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>عنوان IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>قناع الشبكة:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>البوابة:</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>‏DNS المفضل:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>‏DNS البديل:</translation>
    </message>
    <message>
        <source>DHCP Server:</source>
        <translation>خادم DHCP:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>الوضع:</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Computer Name:</source>
        <translation>اسم الكمبيوتر:</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>جارٍ التحميل…</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>تعطيل المحول</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>تمكين المحول</translation>
    </message>
    <message>
        <source>Current Adapter Properties</source>
        <translation>خصائص المحول الحالية</translation>
    </message>
</context>
<context>
    <name>ardeo::AdapterSection</name>
    <message>
        <source>%1 (removed)</source>
        <translation>⁨%1⁩ (أُزيل)</translation>
    </message>
    <message>
        <source>Select Adapter</source>
        <translation>اختيار المحول</translation>
    </message>
    <message>
        <source>Full-duplex</source>
        <translation>ازدواج كامل</translation>
    </message>
    <message>
        <source>Half-duplex</source>
        <translation>نصف ازدواج</translation>
    </message>
    <message>
        <source>%1 (disconnected)</source>
        <translation>⁨%1⁩ (غير متصل)</translation>
    </message>
    <message>
        <source>%1 (disabled)</source>
        <translation>⁨%1⁩ (معطّل)</translation>
    </message>
    <message>
        <source>%1 (on trial)</source>
        <translation>⁨%1⁩ (قيد التجربة)</translation>
    </message>
    <message>
        <source>%1 Gbps</source>
        <translation>%1 غيغابت/ث</translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 ميغابت/ث</translation>
    </message>
</context>
<context>
    <name>ardeo::AppDelegate</name>
    <message>
        <source>Ardeo IP Config is still running. This desktop shows no tray icons, so its window was minimised instead of hidden. %1 ends the program.</source>
        <translation>ما زال Ardeo IP Config قيد التشغيل. لا يعرض سطح المكتب هذا أيقونات في منطقة الإشعارات، لذلك صُغّرت النافذة بدلًا من إخفائها. ⁨%1⁩ ينهي البرنامج.</translation>
    </message>
</context>
<context>
    <name>ardeo::Ardeo_IPConfigApp</name>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>تعليمات Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>حول Ardeo IP Config</translation>
    </message>
    <message>
        <source>Version %1
Works on: %2</source>
        <translation>الإصدار ⁨%1⁩
يعمل على: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>ardeo::AuthError</name>
    <message>
        <source>Cannot create authorization reference.</source>
        <translation>تعذّر إنشاء مرجع التفويض.</translation>
    </message>
    <message>
        <source>Admin authorization was denied or cancelled.</source>
        <translation>رُفض تفويض المسؤول أو أُلغي.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfigError</name>
    <message>
        <source>Cannot acquire preferences lock (SC %1).</source>
        <translation>تعذّر الحصول على قفل التفضيلات (⁨SC %1⁩).</translation>
    </message>
    <message>
        <source>Service &apos;%1&apos; not found.</source>
        <translation>لم يُعثر على الخدمة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Protocol %1 unavailable.</source>
        <translation>البروتوكول ⁨%1⁩ غير متاح.</translation>
    </message>
    <message>
        <source>Cannot save changes (SC %1).</source>
        <translation>تعذّر حفظ التغييرات (⁨SC %1⁩).</translation>
    </message>
    <message>
        <source>Cannot apply changes (SC %1).</source>
        <translation>تعذّر تطبيق التغييرات (⁨SC %1⁩).</translation>
    </message>
    <message>
        <source>Cannot open system network preferences.</source>
        <translation>تعذّر فتح تفضيلات شبكة النظام.</translation>
    </message>
</context>
<context>
    <name>ardeo::ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>ardeo::Console</name>
    <message>
        <source>A command is missing; see ardeoctl --help.</source>
        <translation>الأمر مفقود؛ انظر ⁨ardeoctl ⁨--help⁩⁩.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;; see ardeoctl --help.</source>
        <translation>لا يوجد أمر «⁨%1⁩»؛ انظر ⁨ardeoctl ⁨--help⁩⁩.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs a %2.</source>
        <translation>الأمر «⁨%1⁩» يحتاج إلى ⁨%2⁩.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no &apos;%2&apos;.</source>
        <translation>الأمر «⁨%1⁩» لا يقبل «⁨%2⁩».</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>قيمة ⁨--system⁩ هي auto أو networkmanager أو simulated.</translation>
    </message>
    <message>
        <source>--state goes with --system=simulated.</source>
        <translation>يُستخدم ⁨--state⁩ مع ⁨--system=simulated⁩.</translation>
    </message>
    <message>
        <source>--state needs a file.</source>
        <translation>يحتاج ⁨--state⁩ إلى ملف.</translation>
    </message>
    <message>
        <source>--confirm-within takes 5 to 3600 seconds.</source>
        <translation>يقبل ⁨--confirm-within⁩ من 5 إلى 3600 ثانية.</translation>
    </message>
    <message>
        <source>--profile brings all settings along and takes no others beside it.</source>
        <translation>يجلب ⁨--profile⁩ كل الإعدادات ولا يقبل غيرها معه.</translation>
    </message>
    <message>
        <source>--dhcp takes no --address, --mask or --router.</source>
        <translation>لا يقبل ⁨--dhcp⁩ أيًا من ⁨--address⁩ أو ⁨--mask⁩ أو ⁨--router⁩.</translation>
    </message>
    <message>
        <source>A manual address takes both --address and --mask.</source>
        <translation>العنوان اليدوي يحتاج إلى ⁨--address⁩ و ⁨--mask⁩ معًا.</translation>
    </message>
    <message>
        <source>--dns takes two servers at most.</source>
        <translation>يقبل ⁨--dns⁩ خادمين على الأكثر.</translation>
    </message>
    <message>
        <source>--search needs DNS servers of its own: automatic DNS keeps no search domains.</source>
        <translation>يحتاج ⁨--search⁩ إلى خوادم DNS خاصة: فإعداد DNS التلقائي لا يحتفظ بنطاقات بحث.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no --%2.</source>
        <translation>الأمر «⁨%1⁩» لا يقبل ⁨--⁨%2⁩⁩.</translation>
    </message>
    <message>
        <source>Usage: ardeoctl [--system=SYSTEM] [--state=FILE] COMMAND</source>
        <translation>الاستخدام: ⁨ardeoctl [⁨--system=SYSTEM⁩] [⁨--state=FILE⁩] COMMAND⁩</translation>
    </message>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>يبدّل إعدادات IPv4 وDNS لخدمات الشبكة في هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>الأوامر:</translation>
    </message>
    <message>
        <source>the network services, connected ones first</source>
        <translation>خدمات الشبكة، المتصلة أولًا</translation>
    </message>
    <message>
        <source>the settings and the state of one service</source>
        <translation>إعدادات خدمة واحدة وحالتها</translation>
    </message>
    <message>
        <source>change a service; what is not named keeps its present value</source>
        <translation>تغيير خدمة؛ ما لا يُذكر يحتفظ بقيمته الحالية</translation>
    </message>
    <message>
        <source>put the service on DHCP and take a new lease</source>
        <translation>وضع الخدمة على DHCP وأخذ تأجير جديد</translation>
    </message>
    <message>
        <source>switch the service on</source>
        <translation>تشغيل الخدمة</translation>
    </message>
    <message>
        <source>switch the service off, and keep it off</source>
        <translation>إيقاف الخدمة وإبقاؤها متوقفة</translation>
    </message>
    <message>
        <source>keep what was changed on trial, of one service or of all</source>
        <translation>إبقاء ما غُيّر على سبيل التجربة، لخدمة أو للكل</translation>
    </message>
    <message>
        <source>take it back at once</source>
        <translation>التراجع عنه فورًا</translation>
    </message>
    <message>
        <source>the saved profiles</source>
        <translation>ملفات التعريف المحفوظة</translation>
    </message>
    <message>
        <source>write them to a file</source>
        <translation>كتابتها في ملف</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>الإعدادات:</translation>
    </message>
    <message>
        <source>take the address from the network</source>
        <translation>أخذ العنوان من الشبكة</translation>
    </message>
    <message>
        <source>a manual address with its dotted mask</source>
        <translation>عنوان يدوي مع قناعه المنقوط</translation>
    </message>
    <message>
        <source>the gateway of a manual address; --router= for none</source>
        <translation>بوابة عنوان يدوي؛ و⁨--router=⁩ لعدم وجودها</translation>
    </message>
    <message>
        <source>take the DNS servers from the network</source>
        <translation>أخذ خوادم DNS من الشبكة</translation>
    </message>
    <message>
        <source>DNS servers set by hand</source>
        <translation>خوادم DNS مضبوطة يدويًا</translation>
    </message>
    <message>
        <source>search domains, with DNS servers set by hand</source>
        <translation>نطاقات بحث، مع خوادم DNS مضبوطة يدويًا</translation>
    </message>
    <message>
        <source>Trial (apply, renew, enable, disable):</source>
        <translation>التجربة ⁨(apply, renew, enable, disable)⁩:</translation>
    </message>
    <message>
        <source>take the change back by itself unless it is confirmed in time</source>
        <translation>التراجع عن التغيير تلقائيًا ما لم يؤكَّد في الوقت المحدد</translation>
    </message>
    <message>
        <source>Systems:</source>
        <translation>الأنظمة:</translation>
    </message>
    <message>
        <source>NetworkManager, with advice where it is not running (the default)</source>
        <translation>خدمة NetworkManager، مع نصيحة حيث لا تعمل (الافتراضي)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>a simulated machine, for trying things out</source>
        <translation>جهاز محاكى لتجربة الأشياء</translation>
    </message>
    <message>
        <source>the file that the simulated machine lives in</source>
        <translation>الملف الذي يعيش فيه الجهاز المُحاكى</translation>
    </message>
    <message>
        <source>Exit status: 0 when done, 1 when it failed (the reason is on standard error), 2 for wrong usage.</source>
        <translation>حالة الخروج: 0 عند الإتمام، 1 عند الفشل (السبب في مخرج الأخطاء القياسي)، 2 عند الاستخدام الخاطئ.</translation>
    </message>
    <message>
        <source>No change awaits confirmation.</source>
        <translation>لا يوجد تغيير ينتظر التأكيد.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>تعذّرت كتابة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The saved profiles cannot be read.</source>
        <translation>تعذّرت قراءة ملفات التعريف المحفوظة.</translation>
    </message>
    <message>
        <source>There is no profile &apos;%1&apos;.</source>
        <translation>لا يوجد ملف تعريف «⁨%1⁩».</translation>
    </message>
    <message>
        <source>%1 profiles are named &apos;%2&apos;.</source>
        <translation>عدد ملفات التعريف المسماة «⁨%2⁩»: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>--search needs --dns: automatic DNS keeps no search domains.</source>
        <translation>يحتاج ⁨--search⁩ إلى ⁨--dns⁩: فإعداد DNS التلقائي لا يحتفظ بنطاقات بحث.</translation>
    </message>
    <message>
        <source>--router needs --address and --mask.</source>
        <translation>يحتاج ⁨--router⁩ إلى ⁨--address⁩ و ⁨--mask⁩.</translation>
    </message>
    <message>
        <source>A profile holds text that is not valid Unicode.</source>
        <translation>يحتوي أحد ملفات التعريف على نص ليس بترميز Unicode صالح.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>⁨%1⁩ على ⁨%2⁩</translation>
    </message>
    <message>
        <source>Cannot write the output: %1.</source>
        <translation>تعذّرت كتابة المخرجات: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message numerus="yes">
        <source>, %n s to confirm</source>
        <translation>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
            <numerusform>، بقيت %n ث للتأكيد</numerusform>
        </translation>
    </message>
    <message>
        <source>connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>%1 Gb/s</source>
        <translation>%1 غيغابت/ث</translation>
    </message>
    <message>
        <source>%1 Mb/s</source>
        <translation>%1 ميغابت/ث</translation>
    </message>
    <message>
        <source>full-duplex</source>
        <translation>ازدواج كامل</translation>
    </message>
    <message>
        <source>half-duplex</source>
        <translation>نصف ازدواج</translation>
    </message>
    <message>
        <source>No network services.</source>
        <translation>لا توجد خدمات شبكة.</translation>
    </message>
    <message>
        <source>SERVICE</source>
        <translation>الخدمة</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>HARDWARE ADDRESS</source>
        <translation>العنوان الفعلي</translation>
    </message>
    <message>
        <source>LINK</source>
        <translation>الوصلة</translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation>العتاد</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>الوضع:</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>عنوان IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>قناع الشبكة:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>البوابة:</translation>
    </message>
    <message>
        <source>DNS:</source>
        <translation>DNS:</translation>
    </message>
    <message>
        <source>Search Domains:</source>
        <translation>نطاقات البحث:</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>لا توجد ملفات تعريف محفوظة.</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>IPV4</source>
        <translation>IPV4</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>The change has been taken back.</source>
        <translation>تم التراجع عن التغيير.</translation>
    </message>
    <message>
        <source>The change is no longer on trial.</source>
        <translation>لم يعد التغيير قيد التجربة.</translation>
    </message>
    <message numerus="yes">
        <source>Keep this change? Enter keeps it, u and Enter takes it back; so does waiting %n s. </source>
        <translation>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
            <numerusform>هل تريد إبقاء هذا التغيير؟ Enter يبقيه، وu ثم Enter يتراجع عنه، وكذلك الانتظار %n ث. </numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s. &quot;ardeoctl confirm&quot; keeps it, &quot;ardeoctl undo&quot; takes it back at once.</source>
        <translation>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية. الأمر «⁨ardeoctl confirm⁩» يبقيه، و«⁨ardeoctl undo⁩» يتراجع عنه فورًا.</numerusform>
        </translation>
    </message>
    <message>
        <source>--profiles needs --profile.</source>
        <translation>يحتاج ⁨--profiles⁩ إلى ⁨--profile⁩.</translation>
    </message>
    <message>
        <source>--dry-run changes nothing, and takes no --confirm-within.</source>
        <translation>لا يغيّر ⁨--dry-run⁩ شيئًا ولا يقبل ⁨--confirm-within⁩.</translation>
    </message>
    <message>
        <source>the same with the settings of a saved profile, or of one that was exported</source>
        <translation>الأمر نفسه بإعدادات ملف تعريف محفوظ أو ملف صُدّر</translation>
    </message>
    <message>
        <source>one line for each change of a service, until it is ended</source>
        <translation>سطر لكل تغيير في خدمة، حتى يُنهى الأمر</translation>
    </message>
    <message>
        <source>For scripts (apply):</source>
        <translation>للنصوص البرمجية ⁨(apply)⁩:</translation>
    </message>
    <message>
        <source>only say what would change; nobody is asked for a password</source>
        <translation>عرض ما سيتغير فقط؛ دون طلب كلمة مرور</translation>
    </message>
    <message>
        <source>whether something has changed, and what</source>
        <translation>هل تغيّر شيء، وما هو</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>تعذّرت قراءة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 is no list of profiles.</source>
        <translation>⁨%1⁩ ليس قائمة ملفات تعريف.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>قناع الشبكة</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>البوابة</translation>
    </message>
    <message>
        <source>Preferred DNS</source>
        <translation>‏DNS المفضل</translation>
    </message>
    <message>
        <source>Alternate DNS</source>
        <translation>‏DNS البديل</translation>
    </message>
    <message>
        <source>Search Domains</source>
        <translation>نطاقات البحث</translation>
    </message>
    <message>
        <source>DHCP Server</source>
        <translation>خادم DHCP</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>اسم الكمبيوتر</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>⁨%1⁩:</translation>
    </message>
    <message>
        <source>Nothing to do: &apos;%1&apos; has these settings already.</source>
        <translation>لا شيء للقيام به: لدى «⁨%1⁩» هذه الإعدادات بالفعل.</translation>
    </message>
    <message>
        <source>The settings are saved already, and would be brought into force.</source>
        <translation>الإعدادات محفوظة بالفعل وستُجعل سارية.</translation>
    </message>
    <message>
        <source>Only settings that are not shown here would change.</source>
        <translation>ستتغير فقط إعدادات لا تُعرض هنا.</translation>
    </message>
    <message>
        <source>, on trial</source>
        <translation>، قيد التجربة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>The network service answers again.</source>
        <translation>خدمة الشبكة تستجيب من جديد.</translation>
    </message>
    <message>
        <source>added, %1</source>
        <translation>أُضيفت، ⁨%1⁩</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>أُزيلت</translation>
    </message>
</context>
<context>
    <name>ardeo::DescribedError</name>
    <message>
        <source>Waiting for another program that is changing the network settings. It is process %1.</source>
        <translation>في انتظار برنامج آخر يغيّر إعدادات الشبكة. إنه العملية ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Waiting for another program that is changing the network settings.</source>
        <translation>في انتظار برنامج آخر يغيّر إعدادات الشبكة.</translation>
    </message>
</context>
<context>
    <name>ardeo::DesktopFilePanels</name>
    <message>
        <source>Ardeo IP Config profiles (*.profiles);;All files (*)</source>
        <translation>ملفات تعريف Ardeo IP Config (*.profiles);;كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>ardeo::FileUserDefaults</name>
    <message>
        <source>Your profiles could not be saved: %1.</source>
        <translation>تعذّر حفظ ملفات التعريف: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>those stored before cannot be read</source>
        <translation>لا يمكن قراءة المحفوظ منها سابقًا</translation>
    </message>
</context>
<context>
    <name>ardeo::HelpView</name>
    <message>
        <source>Ardeo IP Config is a native {system} utility for quickly switching network adapter configurations. Switch between DHCP and static IP in seconds — ideal for IT professionals, developers, and power users who work across multiple network environments such as office, home, VPN, or lab setups.

Settings are applied instantly through {configuration}. No restarts required.</source>
        <translation>برنامج Ardeo IP Config أداة أصلية لنظام {system} لتبديل تهيئة محولات الشبكة بسرعة. بدّل بين DHCP وعنوان IP ثابت في ثوانٍ — مثالي لمختصي تقنية المعلومات والمطورين والمستخدمين المتمرسين الذين يعملون في بيئات شبكية متعددة مثل المكتب والمنزل وVPN والمختبر.

تُطبّق الإعدادات فورًا عبر {configuration}. لا حاجة إلى إعادة التشغيل.</translation>
    </message>
    <message>
        <source>Select any adapter</source>
        <translation>اختيار أي محول</translation>
    </message>
    <message>
        <source>Wi-Fi, Ethernet, Thunderbolt, VPN</source>
        <translation>‏Wi-Fi وEthernet وThunderbolt وVPN</translation>
    </message>
    <message>
        <source>DHCP / Static IP</source>
        <translation>‏DHCP / عنوان IP ثابت</translation>
    </message>
    <message>
        <source>Switch modes with one click</source>
        <translation>تبديل الوضع بنقرة واحدة</translation>
    </message>
    <message>
        <source>DNS control</source>
        <translation>التحكم في DNS</translation>
    </message>
    <message>
        <source>Automatic or manually configured DNS servers</source>
        <translation>خوادم DNS تلقائية أو مهيأة يدويًا</translation>
    </message>
    <message>
        <source>Network profiles</source>
        <translation>ملفات تعريف الشبكة</translation>
    </message>
    <message>
        <source>Save, load, rename, delete named presets</source>
        <translation>حفظ الإعدادات المسماة وتحميلها وإعادة تسميتها وحذفها</translation>
    </message>
    <message>
        <source>Import &amp; Export</source>
        <translation>الاستيراد والتصدير</translation>
    </message>
    <message>
        <source>Share profiles as JSON files across machines</source>
        <translation>مشاركة ملفات التعريف بين الأجهزة كملفات JSON</translation>
    </message>
    <message>
        <source>Current properties</source>
        <translation>الخصائص الحالية</translation>
    </message>
    <message>
        <source>Live view of IP, subnet, gateway, DHCP server, computer name</source>
        <translation>عرض حي لعنوان IP والشبكة الفرعية والبوابة وخادم DHCP واسم الكمبيوتر</translation>
    </message>
    <message>
        <source>Enable / Disable adapter</source>
        <translation>تمكين المحول / تعطيله</translation>
    </message>
    <message>
        <source>Toggle any adapter on or off without {settings}</source>
        <translation>تشغيل أي محول أو إيقافه دون {settings}</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>تجديد تأجير DHCP</translation>
    </message>
    <message>
        <source>Force a fresh lease from the DHCP server</source>
        <translation>فرض تأجير جديد من خادم DHCP</translation>
    </message>
    <message>
        <source>{IconPlace} access</source>
        <translation>الوصول من {IconPlace}</translation>
    </message>
    <message>
        <source>Quick access from the {iconPlace} icon at all times</source>
        <translation>وصول سريع في أي وقت من أيقونة {iconPlace}</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Launch automatically when you log in</source>
        <translation>يبدأ تلقائيًا عند تسجيل دخولك</translation>
    </message>
    <message>
        <source>Select an Adapter</source>
        <translation>اختيار محول</translation>
    </message>
    <message>
        <source>Use the dropdown at the top of the left panel to choose a network interface. The hardware name and MAC address appear below the picker.</source>
        <translation>اختر واجهة شبكة من القائمة المنسدلة في أعلى اللوحة اليمنى. يظهر اسم العتاد وعنوان MAC تحتها.</translation>
    </message>
    <message>
        <source>Configure Settings</source>
        <translation>ضبط الإعدادات</translation>
    </message>
    <message>
        <source>Choose &quot;Automatically Set IP Address&quot; for DHCP, or &quot;Manually Set IP Address&quot; to enter a static IP, subnet mask, and gateway. Set DNS in the same way below.</source>
        <translation>اختر «ضبط عنوان IP تلقائيًا» لاستخدام DHCP، أو «ضبط عنوان IP يدويًا» لإدخال عنوان IP ثابت وقناع الشبكة والبوابة. اضبط DNS بالطريقة نفسها أدناه.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Click the Apply button (top-right) or press {apply}. The interface briefly reconfigures; the Current Adapter Properties card refreshes automatically after ~4 seconds.</source>
        <translation>انقر زر «تطبيق» (أعلى اليسار) أو اضغط ⁨{apply}⁩. يُعاد ضبط الواجهة للحظات، وتتحدث بطاقة «خصائص المحول الحالية» تلقائيًا بعد نحو 4 ثوانٍ.</translation>
    </message>
    <message>
        <source>Save a Profile</source>
        <translation>حفظ ملف تعريف</translation>
    </message>
    <message>
        <source>Click &quot;Save Profile…&quot; at the bottom of the left panel. Give the preset a name — it appears in the profiles list immediately.</source>
        <translation>انقر «حفظ ملف التعريف…» في أسفل اللوحة اليمنى. امنحه اسمًا ليظهر فورًا في قائمة ملفات التعريف.</translation>
    </message>
    <message>
        <source>Load a Profile</source>
        <translation>تحميل ملف تعريف</translation>
    </message>
    <message>
        <source>Click any profile row to populate the form fields. Then click Apply to activate it on the selected adapter.</source>
        <translation>انقر أي ملف تعريف لملء الحقول. ثم انقر «تطبيق» لتفعيله على المحول المختار.</translation>
    </message>
    <message>
        <source>Manage Profiles</source>
        <translation>إدارة ملفات التعريف</translation>
    </message>
    <message>
        <source>Right-click any profile to Rename or Delete it. Use the ↓ / ↑ icon buttons to Import or Export the entire profile list as a JSON file.</source>
        <translation>انقر بالزر الأيمن أي ملف تعريف لإعادة تسميته أو حذفه. استخدم الزرين ↓ / ↑ لاستيراد القائمة كلها أو تصديرها كملف JSON.</translation>
    </message>
    <message>
        <source>Enable / Disable Adapter</source>
        <translation>تمكين المحول / تعطيله</translation>
    </message>
    <message>
        <source>In the Current Adapter Properties card, use the &quot;Enable Adapter&quot; or &quot;Disable Adapter&quot; button. Green = re-enable, Red = disable.</source>
        <translation>في بطاقة «خصائص المحول الحالية» استخدم زر «تمكين المحول» أو «تعطيل المحول». الأخضر = إعادة التمكين، الأحمر = التعطيل.</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>تجديد DHCP</translation>
    </message>
    <message>
        <source>Visible in the Set Profile Properties card when the adapter is in DHCP mode. Forces a fresh IP lease from the router.</source>
        <translation>يظهر في بطاقة «ضبط خصائص ملف التعريف» عندما يكون المحول في وضع DHCP. يفرض تأجير IP جديدًا من الموجّه.</translation>
    </message>
    <message>
        <source>Network configuration made fast.</source>
        <translation>تهيئة الشبكة بسرعة.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>الميزات</translation>
    </message>
    <message>
        <source>How to Use</source>
        <translation>طريقة الاستخدام</translation>
    </message>
</context>
<context>
    <name>ardeo::IPAddressField</name>
    <message>
        <source>%1, part %2 of 4</source>
        <translation>⁨%1⁩، الجزء ⁨%2⁩ من 4</translation>
    </message>
</context>
<context>
    <name>ardeo::InfoRow</name>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
</context>
<context>
    <name>ardeo::LeftPanel</name>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>Search profiles</source>
        <translation>البحث في ملفات التعريف</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>No match.</source>
        <translation>لا نتائج.</translation>
    </message>
    <message>
        <source>No saved profiles.</source>
        <translation>لا توجد ملفات تعريف محفوظة.</translation>
    </message>
    <message>
        <source>Save Profile…</source>
        <translation>حفظ ملف التعريف…</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>استيراد ملفات التعريف من ملف</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>تصدير ملفات التعريف إلى ملف</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>حذف ملف التعريف</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>حذف «⁨%1⁩»</translation>
    </message>
</context>
<context>
    <name>ardeo::MainMenu</name>
    <message>
        <source>Remove from Login Items</source>
        <translation>الإزالة من عناصر تسجيل الدخول</translation>
    </message>
    <message>
        <source>Start at Login</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>&amp;Ardeo IP Config</source>
        <translation>&amp;Ardeo IP Config</translation>
    </message>
    <message>
        <source>About Ardeo IP Config</source>
        <translation>حول Ardeo IP Config</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>إخفاء Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>إنهاء Ardeo IP Config</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Import Profiles…</source>
        <translation>استيراد ملفات التعريف…</translation>
    </message>
    <message>
        <source>Export Profiles…</source>
        <translation>تصدير ملفات التعريف…</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>أ&amp;دوات</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>تجديد DHCP</translation>
    </message>
    <message>
        <source>Enable Adapter</source>
        <translation>تمكين المحول</translation>
    </message>
    <message>
        <source>Disable Adapter</source>
        <translation>تعطيل المحول</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>فتح إعدادات الشبكة</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>فتح مراقب النشاط</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Ardeo IP Config Help</source>
        <translation>تعليمات Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>اختصارات لوحة المفاتيح…</translation>
    </message>
</context>
<context>
    <name>ardeo::MainViewModel</name>
    <message>
        <source>Nobody confirmed the change of &apos;%1&apos;, so it was taken back.</source>
        <translation>لم يؤكد أحد تغيير «⁨%1⁩»، لذلك تم التراجع عنه.</translation>
    </message>
    <message>
        <source>Export Ardeo IP Config profiles</source>
        <translation>تصدير ملفات تعريف Ardeo IP Config</translation>
    </message>
    <message>
        <source>Select an Ardeo IP Config profiles file (.profiles)</source>
        <translation>اختيار ملف تعريفات Ardeo IP Config ‏(.profiles)</translation>
    </message>
    <message>
        <source>Could not read profiles file.</source>
        <translation>تعذّرت قراءة ملف التعريفات.</translation>
    </message>
    <message>
        <source>Start at login: %1</source>
        <translation>البدء عند تسجيل الدخول: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>ardeo::MenuBarMenuView</name>
    <message>
        <source>Open Ardeo IP Config</source>
        <translation>فتح Ardeo IP Config</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts…</source>
        <translation>اختصارات لوحة المفاتيح…</translation>
    </message>
    <message>
        <source>Network Settings…</source>
        <translation>إعدادات الشبكة…</translation>
    </message>
    <message>
        <source>Activity Monitor…</source>
        <translation>مراقب النشاط…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>ardeo::NoticePanel</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>ardeo::PresetList</name>
    <message>
        <source>Manual</source>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>تحميل</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>تحميل ملف التعريف</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة التسمية…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>حذف…</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfileNameSheet</name>
    <message>
        <source>Profile name</source>
        <translation>اسم ملف التعريف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>ardeo::ProfilePropertiesCard</name>
    <message>
        <source>IP Address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Automatically Set IP Address</source>
        <translation>ضبط عنوان IP تلقائيًا</translation>
    </message>
    <message>
        <source>Manually Set IP Address</source>
        <translation>ضبط عنوان IP يدويًا</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>عنوان IP:</translation>
    </message>
    <message>
        <source>Subnet Mask:</source>
        <translation>قناع الشبكة:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>البوابة:</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Automatically Set DNS Address</source>
        <translation>ضبط عنوان DNS تلقائيًا</translation>
    </message>
    <message>
        <source>Manually Set DNS Address</source>
        <translation>ضبط عنوان DNS يدويًا</translation>
    </message>
    <message>
        <source>Preferred DNS:</source>
        <translation>‏DNS المفضل:</translation>
    </message>
    <message>
        <source>Alternate DNS:</source>
        <translation>‏DNS البديل:</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
    <message numerus="yes">
        <source>The change is taken back in %n s.</source>
        <translation>
            <numerusform>سيتم التراجع عن التغيير الآن.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال ثانية واحدة.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال ثانيتين.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثوانٍ.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية.</numerusform>
            <numerusform>سيتم التراجع عن التغيير خلال %n ثانية.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Renew DHCP</source>
        <translation>تجديد DHCP</translation>
    </message>
    <message>
        <source>Force a new DHCP lease</source>
        <translation>فرض تأجير DHCP جديد</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>تم التطبيق</translation>
    </message>
    <message>
        <source>Set Profile Properties</source>
        <translation>ضبط خصائص ملف التعريف</translation>
    </message>
</context>
<context>
    <name>ardeo::Program</name>
    <message>
        <source>Switches the IPv4 and DNS settings of this computer&apos;s network services.</source>
        <translation>يبدّل إعدادات IPv4 وDNS لخدمات الشبكة في هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Says the version and the system.</source>
        <translation>يعرض الإصدار والنظام.</translation>
    </message>
    <message>
        <source>The system to work on: auto, networkmanager or simulated.</source>
        <translation>النظام المراد العمل عليه: auto أو networkmanager أو simulated.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file.</source>
        <translation>ملف الجهاز المُحاكى.</translation>
    </message>
    <message>
        <source>--system is auto, networkmanager or simulated.</source>
        <translation>قيمة ⁨--system⁩ هي auto أو networkmanager أو simulated.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>⁨%1⁩ على ⁨%2⁩</translation>
    </message>
    <message>
        <source>An option&apos;s value that is an option&apos;s name is written with =.</source>
        <translation>قيمة الخيار التي هي نفسها اسم خيار تُكتب مع =.</translation>
    </message>
    <message>
        <source>Ardeo IP Config is running already, but does not answer.</source>
        <translation>إن Ardeo IP Config قيد التشغيل بالفعل، لكنه لا يستجيب.</translation>
    </message>
    <message>
        <source>Ardeo IP Config on %1</source>
        <translation>‏Ardeo IP Config على ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>ardeo::RenamePresetSheet</name>
    <message>
        <source>Rename Profile</source>
        <translation>إعادة تسمية ملف التعريف</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
</context>
<context>
    <name>ardeo::RightPanel</name>
    <message>
        <source>No Network Services</source>
        <translation>لا توجد خدمات شبكة</translation>
    </message>
    <message>
        <source>No network services found on {thisComputer}.</source>
        <translation>لم يُعثر على خدمات شبكة في {thisComputer}.</translation>
    </message>
    <message>
        <source>Disable %1?</source>
        <translation>تعطيل ⁨%1⁩؟</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>المحول</translation>
    </message>
    <message>
        <source>This will disconnect %1 from the network.</source>
        <translation>سيؤدي هذا إلى فصل ⁨%1⁩ عن الشبكة.</translation>
    </message>
    <message>
        <source>the adapter</source>
        <translation>المحول</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>تعطيل</translation>
    </message>
</context>
<context>
    <name>ardeo::SavePresetSheet</name>
    <message>
        <source>Save Profile</source>
        <translation>حفظ ملف التعريف</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
</context>
<context>
    <name>ardeo::SettingFault</name>
    <message>
        <source>Without a device it could not be taken back by itself.</source>
        <translation>لا يمكن التراجع عنه تلقائيًا دون جهاز.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>⁨%1⁩: القيمة مفقودة.</translation>
    </message>
    <message>
        <source>%1 is not complete.</source>
        <translation>⁨%1⁩: القيمة غير مكتملة.</translation>
    </message>
    <message>
        <source>%1 is not an IPv4 address.</source>
        <translation>⁨%1⁩ ليس عنوان IPv4.</translation>
    </message>
    <message>
        <source>%1 cannot be the address of a computer.</source>
        <translation>لا يمكن أن يكون ⁨%1⁩ عنوان كمبيوتر.</translation>
    </message>
    <message>
        <source>The subnet mask</source>
        <translation>قناع الشبكة</translation>
    </message>
    <message>
        <source>%1 is not a subnet mask.</source>
        <translation>⁨%1⁩ ليس قناع شبكة.</translation>
    </message>
    <message>
        <source>The IP address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>%1 is the address of the network itself.</source>
        <translation>⁨%1⁩ هو عنوان الشبكة نفسها.</translation>
    </message>
    <message>
        <source>%1 is the broadcast address of the network.</source>
        <translation>⁨%1⁩ هو عنوان البث في الشبكة.</translation>
    </message>
    <message>
        <source>The addresses are set neither by DHCP nor by hand.</source>
        <translation>لم تُضبط العناوين عبر DHCP ولا يدويًا.</translation>
    </message>
    <message>
        <source>The gateway</source>
        <translation>البوابة</translation>
    </message>
    <message>
        <source>The gateway is the address itself.</source>
        <translation>البوابة هي العنوان نفسه.</translation>
    </message>
    <message>
        <source>The DNS server</source>
        <translation>خادم DNS</translation>
    </message>
    <message>
        <source>The search domains are not a list of names.</source>
        <translation>نطاقات البحث ليست قائمة أسماء.</translation>
    </message>
    <message>
        <source>The preferred DNS server</source>
        <translation>خادم DNS المفضل</translation>
    </message>
    <message>
        <source>The alternate DNS server</source>
        <translation>خادم DNS البديل</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a search domain.</source>
        <translation>«⁨%1⁩» ليس نطاق بحث.</translation>
    </message>
    <message>
        <source>A service whose IPv4 is &quot;%1&quot; takes no DNS servers.</source>
        <translation>الخدمة التي وضع IPv4 فيها «⁨%1⁩» لا تقبل خوادم DNS.</translation>
    </message>
    <message>
        <source>No change of it awaits confirmation.</source>
        <translation>لا يوجد تغيير ينتظر التأكيد.</translation>
    </message>
    <message>
        <source>An earlier change of it awaits confirmation; confirm it or take it back first.</source>
        <translation>هناك تغيير سابق ينتظر التأكيد؛ أكّده أو تراجع عنه أولًا.</translation>
    </message>
</context>
<context>
    <name>ardeo::ShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>التهيئة</translation>
    </message>
    <message>
        <source>Apply configuration</source>
        <translation>تطبيق التهيئة</translation>
    </message>
    <message>
        <source>Refresh adapter list</source>
        <translation>تحديث قائمة المحولات</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>Import profiles from file</source>
        <translation>استيراد ملفات التعريف من ملف</translation>
    </message>
    <message>
        <source>Export profiles to file</source>
        <translation>تصدير ملفات التعريف إلى ملف</translation>
    </message>
    <message>
        <source>Adapter</source>
        <translation>المحول</translation>
    </message>
    <message>
        <source>Tools → Renew DHCP</source>
        <translation>أدوات ← تجديد DHCP</translation>
    </message>
    <message>
        <source>Renew DHCP lease</source>
        <translation>تجديد تأجير DHCP</translation>
    </message>
    <message>
        <source>Tools → Enable Adapter</source>
        <translation>أدوات ← تمكين المحول</translation>
    </message>
    <message>
        <source>Enable the selected adapter</source>
        <translation>تمكين المحول المختار</translation>
    </message>
    <message>
        <source>Tools → Disable Adapter</source>
        <translation>أدوات ← تعطيل المحول</translation>
    </message>
    <message>
        <source>Disable the selected adapter</source>
        <translation>تعطيل المحول المختار</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>التنقل</translation>
    </message>
    <message>
        <source>Tools → Network Settings</source>
        <translation>أدوات ← إعدادات الشبكة</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>فتح إعدادات الشبكة</translation>
    </message>
    <message>
        <source>Tools → Activity Monitor</source>
        <translation>أدوات ← مراقب النشاط</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>فتح مراقب النشاط</translation>
    </message>
    <message>
        <source>Hide Ardeo IP Config</source>
        <translation>إخفاء Ardeo IP Config</translation>
    </message>
    <message>
        <source>Quit Ardeo IP Config</source>
        <translation>إنهاء Ardeo IP Config</translation>
    </message>
</context>
<context>
    <name>ardeo::Trouble</name>
    <message>
        <source>NetworkManager is not running.</source>
        <translation>خدمة NetworkManager لا تعمل.</translation>
    </message>
    <message>
        <source>NetworkManager does not answer.</source>
        <translation>خدمة NetworkManager لا تستجيب.</translation>
    </message>
    <message>
        <source>NetworkManager is not running; --system=simulated works without it.</source>
        <translation>خدمة NetworkManager لا تعمل؛ ويعمل ⁨--system=simulated⁩ دونها.</translation>
    </message>
    <message>
        <source>The simulated machine&apos;s file %1 cannot be read.</source>
        <translation>تعذّرت قراءة ملف الجهاز المُحاكى ⁨%1⁩.</translation>
    </message>
    <message>
        <source>simulated machine (%1)</source>
        <translation>جهاز محاكى (⁨%1⁩)</translation>
    </message>
</context>
<context>
    <name>ardeo::words</name>
    <message>
        <source>this Mac</source>
        <translation>هذا الـ Mac</translation>
    </message>
    <message>
        <source>macOS System Configuration, the same framework used by Network preferences</source>
        <translation>‏macOS System Configuration، الإطار نفسه الذي تستخدمه تفضيلات الشبكة</translation>
    </message>
    <message>
        <source>System Settings</source>
        <translation>إعدادات النظام</translation>
    </message>
    <message>
        <source>menu bar</source>
        <translation>شريط القوائم</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>NetworkManager, the same service used by your desktop&apos;s network settings</source>
        <translation>‏NetworkManager، الخدمة نفسها التي تستخدمها إعدادات الشبكة في سطح المكتب</translation>
    </message>
    <message>
        <source>the desktop&apos;s settings</source>
        <translation>إعدادات سطح المكتب</translation>
    </message>
    <message>
        <source>system tray</source>
        <translation>منطقة الإشعارات</translation>
    </message>
    <message>
        <source>macOS</source>
        <translation>macOS</translation>
    </message>
    <message>
        <source>Linux</source>
        <translation>Linux</translation>
    </message>
</context>
</TS>
