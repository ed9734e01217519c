<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>انقر على «التالي» للمتابعة</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>اسم محرك الأقراص:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>نظام الملفات:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>السعة:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>المساحة الفارغة:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>إعادة تحميل محركات الأقراص</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>اختر طريقة المسح</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>منخفض</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالٍ</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>كتابة سريعة للأصفار (تُستبدل البيانات بأصفار)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>عشوائي </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>معيار DOD 5220.22.M (وزارة الدفاع الأمريكية) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>معيار N.A.V.S.O.- RLL (البحرية الأمريكية) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>معيار N.A.T.O. (منظمة حلف شمال الأطلسي)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>معيار V.S.I.T.R. الألماني </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>طريقة Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>طريقة Peter Guttman مع DoD 5220.22-M</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>بيانات غير محمية: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>جارٍ مسح المساحة الفارغة بأمان</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>الوقت المنقضي:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>البيانات الممسوحة:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>المساحة الفارغة:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>التحكم السحابي </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>التحكم السحابي</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>المساعدة</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>تنبيه!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>هل تريد بالتأكيد مسح المساحة الفارغة في محرك الأقراص المحدد؟</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>يرجى الانتباه!
أغلق جميع الملفات الموجودة في محرك الأقراص هذا، ولا تضف إليه أي بيانات أثناء المسح.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>حدث خطأ غير معروف</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>إعادة تشغيل التطبيق</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>محرك الأقراص هذا للقراءة فقط. يرجى اختيار محرك أقراص آخر.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>توقفت عملية المسح</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>عملية المسح جارية</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>ألغِ المسح أولاً، ثم أغلق التطبيق.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>المرحلة 1: جارٍ تحليل البيانات…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>المرحلة 2: جارٍ مسح البيانات بأمان…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>يرجى الانتظار، جارٍ إنهاء العملية الحالية…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>أكمل المسؤول تشغيل Calvero بنجاح
على: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>احصل عليه الآن</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Google+</source>
        <translation>Google+</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>محركات الأقراص</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>اختر محرك أقراص</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>مسار الوصل:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>محرك أقراص ثابت</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>محرك أقراص قابل للإزالة</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>محرك أقراص شبكي</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>لم يُعثر على أي محرك أقراص</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>وصّل محرك أقراص، ثم اضغط على «إعادة تحميل محركات الأقراص».</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>المساحة المراد مسحها: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>عدد مرات الكتابة: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>لا تكتب شيئًا</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>لا تكتب شيئًا: تُحجز المساحة الفارغة ثم تُحرَّر كما كانت.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>تمت الكتابة فوق %1 من المساحة الفارغة على %2.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>تمت الكتابة فوق %1 فقط من أصل %2 من المساحة الفارغة على %3. قد تظل البيانات المحذوفة قابلة للقراءة هناك.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>لم تتم الكتابة فوق أي شيء: هذه الطريقة لا تكتب أي بيانات.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>تعذّر مسح جزء من المساحة الفارغة في %1. قد تظل البيانات المحذوفة قابلة للقراءة هناك.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>تم مسح المساحة الفارغة، لكن تعذّرت إزالة «%1». غيّر الأذونات وأزله، أو امسح محرك الأقراص مرة أخرى.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>فُصل محرك الأقراص %1 أو تعطّل. قد تظل البيانات المحذوفة قابلة للقراءة عليه.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>وحدة التخزين التي يعتمد عليها محرك الأقراص %1 ممتلئة أو معطلة. أفسح مساحة هناك قبل إزالة محرك الأقراص. قد تظل البيانات المحذوفة قابلة للقراءة على محرك الأقراص.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>لا يوجد محرك أقراص يمكن مسح مساحته الفارغة.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>لا يُسمح لك بالكتابة على محرك الأقراص هذا. اختر محرك أقراص آخر أو راجع المسؤول عنه.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>لا يُسمح لك بالكتابة على محرك الأقراص هذا. اختر محرك أقراص آخر أو شغّل هذا الأمر في نافذة طرفية لمسح مساحته الفارغة بصفتك مسؤولاً.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>لا يُسمح لك بالكتابة على محرك الأقراص هذا. يستطيع أحد المستخدمين تغيير البرنامج %1، لذا يجب ألا يُشغَّل بصفة مسؤول. اطلب من المسؤول تثبيت Calvero ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>الأمر</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>نسخ الأمر</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>تقوم عملية أخرى حاليًا بمسح المساحة الفارغة في محرك الأقراص هذا. انتظر حتى تنتهي أو اختر محرك أقراص آخر.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>لم يعد محرك الأقراص هذا متصلاً. اضغط على «إعادة تحميل محركات الأقراص».</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>محرك الأقراص هذا لا يستجيب. تحقق من توصيله، ثم اضغط على «إعادة تحميل محركات الأقراص».</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>تتوفر في وحدة التخزين التي يقوم عليها محرك الأقراص هذا مساحة أقل مما يعرضه. أفسح مساحة فيها، أو حدد محرك أقراص آخر.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>يحتوي محرك الأقراص هذا على مجلد «%1» لم ينشئه Calvero. أعد تسميته أو أزله، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>يحتوي محرك الأقراص هذا على مجلد «%1» تركته عملية سابقة وهو مقفل. ألغِ قفله أو أزله، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>ينتقل إلى طرق المسح.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>يعود إلى محركات الأقراص.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>يبدأ المسح بعد طلب التأكيد.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>يوقف المسح ويزيل الملفات المؤقتة.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>يحدّث قائمة محركات الأقراص المتصلة.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>يغلق Calvero ويفتح Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>يفتح صفحة المساعدة في متصفح الويب.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>يفتح البوابة السحابية في متصفح الويب.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>يفتح الصفحة في متصفح الويب.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>اختر محرك الأقراص المراد مسح مساحته الفارغة.</translation>
    </message>
</context>
</TS>
