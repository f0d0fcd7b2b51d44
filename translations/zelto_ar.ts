<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Sample photo</source>
        <translation>صورة نموذجية</translation>
    </message>
    <message>
        <source>Setting Load Error</source>
        <translation>خطأ في تحميل الإعداد</translation>
    </message>
    <message>
        <source>Delete the Selected Setting?</source>
        <translation>هل تريد حذف الإعداد المحدد؟</translation>
    </message>
    <message>
        <source>Deleted Setting cannot be restored.</source>
        <translation>لا يمكن استعادة الإعداد بعد حذفه.</translation>
    </message>
    <message>
        <source>&amp;JPEG</source>
        <translation>&amp;JPEG</translation>
    </message>
    <message>
        <source>&amp;PNG</source>
        <translation>&amp;PNG</translation>
    </message>
    <message>
        <source>&amp;TIFF</source>
        <translation>&amp;TIFF</translation>
    </message>
    <message>
        <source>&amp;GIF</source>
        <translation>&amp;GIF</translation>
    </message>
    <message>
        <source>B&amp;MP</source>
        <translation>B&amp;MP</translation>
    </message>
    <message>
        <source>&amp;HEIC</source>
        <translation>&amp;HEIC</translation>
    </message>
    <message>
        <source>A&amp;VIF</source>
        <translation>A&amp;VIF</translation>
    </message>
    <message>
        <source>&amp;WebP</source>
        <translation>&amp;WebP</translation>
    </message>
    <message>
        <source>JPEG &amp;XL</source>
        <translation>JPEG &amp;XL</translation>
    </message>
    <message>
        <source>&amp;Raw</source>
        <translation>&amp;خام</translation>
    </message>
    <message>
        <source>Input Folder cannot be empty</source>
        <translation>لا يمكن ترك مجلد الإدخال فارغًا</translation>
    </message>
    <message>
        <source>Please select the folder from where the Images are to be added</source>
        <translation>يُرجى اختيار المجلد الذي ستُضاف منه الصور</translation>
    </message>
    <message>
        <source>File Extension list cannot be empty</source>
        <translation>لا يمكن ترك قائمة امتدادات الملفات فارغة</translation>
    </message>
    <message>
        <source>Please select atleast one Extension to be included</source>
        <translation>يُرجى اختيار امتداد واحد على الأقل</translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation>استيراد الإعدادات</translation>
    </message>
    <message>
        <source>Please browse and select the folder from where the settings are to be imported</source>
        <translation>يُرجى اختيار المجلد الذي ستُستورد منه الإعدادات</translation>
    </message>
    <message>
        <source>Settings have been imported into Zelto</source>
        <translation>تم استيراد الإعدادات إلى Zelto</translation>
    </message>
    <message>
        <source>Import Error</source>
        <translation>خطأ في الاستيراد</translation>
    </message>
    <message>
        <source>Error in importing settings. Please try again later.</source>
        <translation>تعذّر استيراد الإعدادات. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>تصدير الإعدادات</translation>
    </message>
    <message>
        <source>Please browse and select the folder  where the settings are to be exported</source>
        <translation>يُرجى اختيار المجلد الذي ستُصدَّر إليه الإعدادات</translation>
    </message>
    <message>
        <source>Settings have been exported</source>
        <translation>تم تصدير الإعدادات</translation>
    </message>
    <message>
        <source>Export Error</source>
        <translation>خطأ في التصدير</translation>
    </message>
    <message>
        <source>Error in exporting settings. Please try again later.</source>
        <translation>تعذّر تصدير الإعدادات. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>إعدادات الإخراج</translation>
    </message>
    <message>
        <source>Settings have been saved</source>
        <translation>تم حفظ الإعدادات</translation>
    </message>
    <message>
        <source>Settings cannot be saved.</source>
        <translation>تعذّر حفظ الإعدادات.</translation>
    </message>
    <message>
        <source>Include All</source>
        <translation>تضمين الكل</translation>
    </message>
    <message>
        <source>Copyright Only</source>
        <translation>حقوق النشر فقط</translation>
    </message>
    <message>
        <source>Exclude Geolocation</source>
        <translation>استبعاد الموقع الجغرافي</translation>
    </message>
    <message>
        <source>Exclude All</source>
        <translation>استبعاد الكل</translation>
    </message>
    <message>
        <source>A Setting with the same name Exists.</source>
        <translation>يوجد إعداد بالاسم نفسه.</translation>
    </message>
    <message>
        <source>Do You want to OverWrite it?</source>
        <translation>هل تريد الكتابة فوقه؟</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>QR code</source>
        <translation>رمز QR</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1 وعنصر آخر</numerusform>
            <numerusform>%1 وعنصران آخران</numerusform>
            <numerusform>%1 و%Ln عناصر أخرى</numerusform>
            <numerusform>%1 و%Ln عنصرًا آخر</numerusform>
            <numerusform>%1 و%Ln عنصر آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>Filter %1</source>
        <translation>المرشّح %1</translation>
    </message>
    <message>
        <source>Border and shadow</source>
        <translation>الإطار والظل</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>إضافة صور</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Version Check</source>
        <translation>التحقق من الإصدار</translation>
    </message>
    <message>
        <source>The newest version cannot be found out at the moment.
%1</source>
        <translation>تتعذّر معرفة أحدث إصدار حاليًا.
%1</translation>
    </message>
    <message>
        <source>You are using the latest version of Zelto</source>
        <translation>أنت تستخدم أحدث إصدار من Zelto</translation>
    </message>
    <message>
        <source>Zelto Update</source>
        <translation>تحديث Zelto</translation>
    </message>
    <message>
        <source>A new version of Zelto is available. Would you like to download it now?</source>
        <translation>يتوفر إصدار جديد من Zelto. هل تريد تنزيله الآن؟</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>This is version %1. No address is set to ask for a newer one.</source>
        <translation>هذا هو الإصدار %1. لم يُضبط عنوان للسؤال عن إصدار أحدث.</translation>
    </message>
    <message>
        <source>Asking for the newest version...</source>
        <translation>جارٍ السؤال عن أحدث إصدار...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Watermark Error</source>
        <translation>خطأ في العلامة المائية</translation>
    </message>
    <message>
        <source>not processed</source>
        <translation>لم تُعالَج</translation>
    </message>
    <message>
        <source>written</source>
        <translation>كُتبت</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>فشلت</translation>
    </message>
    <message>
        <source>written with warnings</source>
        <translation>كُتبت مع تحذيرات</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1، %2، %3</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>محددة</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>غير محددة</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>ولا شيء غيرها</numerusform>
            <numerusform>وواحدة أخرى</numerusform>
            <numerusform>واثنتان أخريان</numerusform>
            <numerusform>و%Ln أخرى</numerusform>
            <numerusform>و%Ln أخرى</numerusform>
            <numerusform>و%Ln أخرى</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Be Replaced</source>
        <translation>
            <numerusform>لن تُستبدل أي صورة</numerusform>
            <numerusform>ستُستبدل صورة واحدة</numerusform>
            <numerusform>ستُستبدل صورتان</numerusform>
            <numerusform>ستُستبدل %Ln صور</numerusform>
            <numerusform>ستُستبدل %Ln صورة</numerusform>
            <numerusform>ستُستبدل %Ln صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Their watermarked copies would take the place of the originals, which would be lost:
%1</source>
        <translation>ستحل النسخ ذات العلامة المائية محل الأصول، فتضيع الأصول:
%1</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>اختيار مجلد آخر</translation>
    </message>
    <message>
        <source>Some photos would get the same name, and each would take the place of the one before it. “Number” puts 1, 2 and so on behind the name:
%1</source>
        <translation>ستحمل بعض الصور الاسم نفسه، فتحل كل منها محل سابقتها. «ترقيم» يضيف 1 و2 وهكذا بعد الاسم:
%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Photo(s) Would Become %1</source>
        <translation>
            <numerusform>لن تصبح أي صورة %1</numerusform>
            <numerusform>ستصبح صورة واحدة %1</numerusform>
            <numerusform>ستصبح صورتان %1</numerusform>
            <numerusform>ستصبح %Ln صور %1</numerusform>
            <numerusform>ستصبح %Ln صورة %1</numerusform>
            <numerusform>ستصبح %Ln صورة %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s)</source>
        <translation>
            <numerusform>دون ملفات</numerusform>
            <numerusform>ملفًا واحدًا</numerusform>
            <numerusform>ملفين</numerusform>
            <numerusform>%Ln ملفات</numerusform>
            <numerusform>%Ln ملفًا</numerusform>
            <numerusform>%Ln ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>Number</source>
        <translation>ترقيم</translation>
    </message>
    <message>
        <source>“Replace” writes over what is there, “Number” puts 1, 2 and so on behind the new names, “Skip” leaves these photos out:
%1</source>
        <translation>«استبدال» يكتب فوق الموجود، و«ترقيم» يضيف 1 و2 وهكذا بعد الأسماء الجديدة، و«تخطٍّ» يترك هذه الصور:
%1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln File(s) Exist Already</source>
        <translation>
            <numerusform>لا يوجد أي ملف مسبقًا</numerusform>
            <numerusform>يوجد ملف واحد مسبقًا</numerusform>
            <numerusform>يوجد ملفان مسبقًا</numerusform>
            <numerusform>توجد %Ln ملفات مسبقًا</numerusform>
            <numerusform>يوجد %Ln ملفًا مسبقًا</numerusform>
            <numerusform>يوجد %Ln ملف مسبقًا</numerusform>
        </translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>تخطٍّ</translation>
    </message>
    <message>
        <source>YOUR LOGO</source>
        <translation>شعارك هنا</translation>
    </message>
    <message>
        <source>Your logo</source>
        <translation>شعارك</translation>
    </message>
    <message>
        <source>SAMPLE</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Caption bar</source>
        <translation>شريط العنوان</translation>
    </message>
    <message>
        <source>PROOF</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>Corner logo</source>
        <translation>شعار في الزاوية</translation>
    </message>
    <message>
        <source>A place for your logo in the lower right corner</source>
        <translation>موضع لشعارك في الزاوية السفلى اليمنى</translation>
    </message>
    <message>
        <source>Diagonal text</source>
        <translation>نص مائل</translation>
    </message>
    <message>
        <source>A text all over the photo</source>
        <translation>نص على الصورة كلها</translation>
    </message>
    <message>
        <source>The photo&apos;s name and date on a bar along the lower edge</source>
        <translation>اسم الصورة وتاريخها على شريط بمحاذاة الحافة السفلى</translation>
    </message>
    <message>
        <source>Proof with QR code</source>
        <translation>مسودة مع رمز QR</translation>
    </message>
    <message>
        <source>PROOF all over the photo, and its name as a QR code</source>
        <translation>كلمة «مسودة» على الصورة كلها، واسمها على هيئة رمز QR</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>There are no watermarks to paste.</source>
        <translation>لا توجد علامات مائية للصقها.</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>مستطيل</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>قطع ناقص</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>مضلّع</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>خط</translation>
    </message>
    <message>
        <source>Shape - %1</source>
        <translation>شكل - %1</translation>
    </message>
    <message>
        <source>Filter - %1</source>
        <translation>مرشّح - %1</translation>
    </message>
    <message>
        <source>There are neither watermarks nor photos on the clipboard.</source>
        <translation>لا توجد في الحافظة علامات مائية ولا صور.</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>تم حفظ «%1».</translation>
    </message>
    <message>
        <source>&amp;Ready-Made</source>
        <translation>&amp;جاهزة</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Remove the watermarks, the filter and the copyright data; border and shadow stay</source>
        <translation>إزالة العلامات المائية والمرشّح وبيانات حقوق النشر، مع بقاء الإطار والظل</translation>
    </message>
    <message>
        <source>Watermarking failed.</source>
        <translation>فشل وضع العلامة المائية.</translation>
    </message>
    <message>
        <source>Successive Fail</source>
        <translation>إخفاق متتالٍ</translation>
    </message>
    <message>
        <source>3 Photos in a row failed to save, Would you like to  continue watermarking?
We recommend stopping the process and run as administrator.
Select No to stop watermarking.</source>
        <translation>تعذّر حفظ 3 صور متتالية. هل تريد متابعة وضع العلامات المائية؟
ننصح بإيقاف العملية وتشغيل البرنامج بصلاحيات المدير.
اختر «لا» لإيقاف وضع العلامات المائية.</translation>
    </message>
    <message>
        <source>Watermark Output</source>
        <translation>إخراج العلامات المائية</translation>
    </message>
    <message>
        <source>Watermark process completed successfully</source>
        <translation>اكتملت عملية وضع العلامات المائية بنجاح</translation>
    </message>
    <message>
        <source>Watermark process completed but some Photos produced Error
Double Click the Image Entry to know the problem</source>
        <translation>اكتملت عملية وضع العلامات المائية لكن حدثت أخطاء في بعض الصور
انقر نقرًا مزدوجًا على مدخل الصورة لمعرفة المشكلة</translation>
    </message>
    <message>
        <source>the folder cannot be read: %1</source>
        <translation>تتعذّر قراءة المجلد: %1</translation>
    </message>
    <message>
        <source>the name is not UTF-8 text, so the photo cannot be opened; rename it</source>
        <translation>الاسم ليس نصًا بترميز UTF-8 فلا يمكن فتح الصورة؛ أعد تسميتها</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>الرابط لا يؤدي إلى شيء</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be read.</source>
        <translation>تتعذّر قراءة المجلد «⁨%1⁩».</translation>
    </message>
    <message>
        <source>A filter changes the whole photo.</source>
        <translation>يغيّر المرشّح الصورة كلها.</translation>
    </message>
    <message>
        <source>A border or a shadow is put around it.</source>
        <translation>يُضاف حولها إطار أو ظل.</translation>
    </message>
    <message>
        <source>It is resized.</source>
        <translation>يتغيّر حجمها.</translation>
    </message>
    <message>
        <source>an earlier photo of the run has the output “%1”</source>
        <translation>لصورة سابقة في هذا التشغيل الملف الناتج «%1»</translation>
    </message>
    <message>
        <source>“%1” exists already</source>
        <translation>«%1» موجود مسبقًا</translation>
    </message>
    <message>
        <source>Left out: %1.</source>
        <translation>تُركت: %1.</translation>
    </message>
    <message>
        <source>Not written: %1.</source>
        <translation>لم تُكتب: %1.</translation>
    </message>
    <message>
        <source>The output takes the place of an earlier photo&apos;s of the same name.</source>
        <translation>يحل الملف الناتج محل ملف صورة سابقة بالاسم نفسه.</translation>
    </message>
    <message>
        <source>Files of the kind “%1” are not written here: the output is a JPEG.</source>
        <translation>لا تُكتب هنا ملفات من النوع «%1»: الملف الناتج بصيغة JPEG.</translation>
    </message>
    <message>
        <source>The photo was written without its metadata: %1</source>
        <translation>كُتبت الصورة من دون بياناتها الوصفية: %1</translation>
    </message>
    <message>
        <source>“%1” has no extension of a format that can be written.</source>
        <translation>ليس لـ«%1» امتداد صيغة يمكن كتابتها.</translation>
    </message>
    <message>
        <source>A size of %1 × %2 pixels cannot be written.</source>
        <translation>لا يمكن كتابة حجم قدره %1 × %2 بكسل.</translation>
    </message>
    <message>
        <source>Original name</source>
        <translation>الاسم الأصلي</translation>
    </message>
    <message>
        <source>Number, two digits</source>
        <translation>رقم من خانتين</translation>
    </message>
    <message>
        <source>Number, three digits</source>
        <translation>رقم من ثلاث خانات</translation>
    </message>
    <message>
        <source>Number, four digits</source>
        <translation>رقم من أربع خانات</translation>
    </message>
    <message>
        <source>Date: month, day, year</source>
        <translation>التاريخ: الشهر، اليوم، السنة</translation>
    </message>
    <message>
        <source>Date: day, month, year</source>
        <translation>التاريخ: اليوم، الشهر، السنة</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>وقت الالتقاط</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>City</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>Photo width</source>
        <translation>عرض الصورة</translation>
    </message>
    <message>
        <source>Photo height</source>
        <translation>ارتفاع الصورة</translation>
    </message>
    <message>
        <source>Auto Number</source>
        <translation>ترقيم تلقائي</translation>
    </message>
    <message>
        <source>Today&apos;s Date</source>
        <translation>تاريخ اليوم</translation>
    </message>
    <message>
        <source>Image Name (Without Extension)</source>
        <translation>اسم الصورة (بلا امتداد)</translation>
    </message>
    <message>
        <source>Image Name (With Extension)</source>
        <translation>اسم الصورة (مع الامتداد)</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>اسم المجلد</translation>
    </message>
    <message>
        <source>Full Image Path</source>
        <translation>المسار الكامل للصورة</translation>
    </message>
    <message>
        <source>Creation Date</source>
        <translation>تاريخ الإنشاء</translation>
    </message>
    <message>
        <source>Modification Date</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Photo Width</source>
        <translation>عرض الصورة</translation>
    </message>
    <message>
        <source>Photo Height</source>
        <translation>ارتفاع الصورة</translation>
    </message>
    <message>
        <source>Photo DPI Width</source>
        <translation>الدقة الأفقية (DPI)</translation>
    </message>
    <message>
        <source>Photo DPI Height</source>
        <translation>الدقة الرأسية (DPI)</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>«%1» غير موجود.</translation>
    </message>
    <message>
        <source>“%1” was given up after it had not answered twice.</source>
        <translation>تُرك «%1» بعد أن لم يستجب مرتين.</translation>
    </message>
    <message>
        <source>“%1” was not given the time.</source>
        <translation>لم يُمهَل «%1» الوقت الكافي.</translation>
    </message>
    <message>
        <source>“%1” ended while it was needed.</source>
        <translation>انتهى «%1» وهو ما زال مطلوبًا.</translation>
    </message>
    <message>
        <source>“%1” did not answer in time.</source>
        <translation>لم يستجب «%1» في الوقت المناسب.</translation>
    </message>
    <message>
        <source>exiftool cannot be told “%1”.</source>
        <translation>لا يمكن تمرير «%1» إلى exiftool.</translation>
    </message>
    <message>
        <source>“%1” cannot be started: %2</source>
        <translation>يتعذّر تشغيل «%1»: %2</translation>
    </message>
    <message>
        <source>exiftool did not write the metadata: %1</source>
        <translation>لم يكتب exiftool البيانات الوصفية: %1</translation>
    </message>
    <message>
        <source>exiftool did not remove the photo&apos;s position.</source>
        <translation>لم يُزل exiftool موقع الصورة.</translation>
    </message>
    <message>
        <source>exiftool did not remove a picture from the photo&apos;s metadata.</source>
        <translation>لم يُزل exiftool صورة مضمّنة في البيانات الوصفية.</translation>
    </message>
    <message>
        <source>exiftool left a file that is not the one it was given.</source>
        <translation>ترك exiftool ملفًا غير الذي أُعطي له.</translation>
    </message>
    <message>
        <source>exiftool left a file that is not the picture it was given.</source>
        <translation>ترك exiftool ملفًا ليس الصورة التي أُعطيت له.</translation>
    </message>
    <message>
        <source>Output path cannot be empty</source>
        <translation>لا يمكن ترك مسار الإخراج فارغًا</translation>
    </message>
    <message>
        <source>Please select the folder for the output</source>
        <translation>يُرجى اختيار مجلد الإخراج</translation>
    </message>
    <message>
        <source>Output path not accessible</source>
        <translation>لا يمكن الوصول إلى مسار الإخراج</translation>
    </message>
    <message>
        <source>The selected path is not accessible. Please select another path.</source>
        <translation>لا يمكن الوصول إلى المسار المحدد. يُرجى اختيار مسار آخر.</translation>
    </message>
    <message>
        <source>Longer side cannot be empty</source>
        <translation>لا يمكن ترك الضلع الأطول فارغًا</translation>
    </message>
    <message>
        <source>Please enter the size of the longer side of the photo</source>
        <translation>يُرجى إدخال طول الضلع الأطول للصورة</translation>
    </message>
    <message>
        <source>a watermark&apos;s type is missing or no number</source>
        <translation>نوع إحدى العلامات المائية مفقود أو ليس رقمًا</translation>
    </message>
    <message>
        <source>“%1” was not written: the logos are too large for a setting file.</source>
        <translation>لم يُكتب «%1»: الشعارات أكبر من أن يتسع لها ملف الإعداد.</translation>
    </message>
    <message>
        <source>The settings are already in “%1”.</source>
        <translation>الإعدادات موجودة مسبقًا في «%1».</translation>
    </message>
    <message>
        <source>A setting cannot be named “%1”.</source>
        <translation>لا يمكن تسمية إعداد بالاسم «%1».</translation>
    </message>
    <message>
        <source>There is no setting “%1”.</source>
        <translation>لا يوجد إعداد باسم «%1».</translation>
    </message>
    <message>
        <source>The setting “%1” cannot be deleted: %2</source>
        <translation>يتعذّر حذف الإعداد «%1»: %2</translation>
    </message>
    <message>
        <source>the file holds too many elements</source>
        <translation>يحتوي الملف على عناصر أكثر مما ينبغي</translation>
    </message>
    <message>
        <source>the elements are nested too deeply</source>
        <translation>العناصر متداخلة بعمق أكبر مما ينبغي</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>الملف ليس نصًا بترميز UTF-8</translation>
    </message>
    <message>
        <source>a document type declaration is not accepted</source>
        <translation>لا يُقبل تصريح نوع المستند</translation>
    </message>
    <message>
        <source>a tag is too long</source>
        <translation>أحد الوسوم طويل جدًا</translation>
    </message>
    <message>
        <source>the file&apos;s root is “%1” instead of “%2”</source>
        <translation>العنصر الجذر للملف هو «%1» بدلاً من «%2»</translation>
    </message>
    <message>
        <source>There is no file “%1”.</source>
        <translation>لا يوجد ملف باسم «⁨%1⁩».</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2</source>
        <translation>تتعذّر قراءة «⁨%1⁩»: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1، السطر %2: %3</translation>
    </message>
    <message>
        <source>The GIF encoder failed: %1</source>
        <translation>فشل ترميز GIF: %1</translation>
    </message>
    <message>
        <source>no palette could be made</source>
        <translation>تعذّر إنشاء لوحة ألوان</translation>
    </message>
    <message>
        <source>This Zelto was built without an AVIF encoder.</source>
        <translation>بُنيت هذه النسخة من Zelto بلا مرمّز AVIF.</translation>
    </message>
    <message>
        <source>This Zelto was built without a HEIC encoder.</source>
        <translation>بُنيت هذه النسخة من Zelto بلا مرمّز HEIC.</translation>
    </message>
    <message>
        <source>The %1 encoder failed: %2</source>
        <translation>فشل ترميز %1: %2</translation>
    </message>
    <message>
        <source>The JPEG encoder failed: %1</source>
        <translation>فشل ترميز JPEG: %1</translation>
    </message>
    <message>
        <source>The photo&apos;s data cannot be taken over as they are.</source>
        <translation>لا يمكن نقل بيانات الصورة كما هي.</translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored width, %1 pixels, is no multiple of %2.</source>
        <translation>لا يمكن تدويرها بلا فقد: عرضها المخزَّن، %1 بكسل، ليس من مضاعفات %2.</translation>
    </message>
    <message>
        <source>It cannot be turned without loss: its stored height, %1 pixels, is no multiple of %2.</source>
        <translation>لا يمكن تدويرها بلا فقد: ارتفاعها المخزَّن، %1 بكسل، ليس من مضاعفات %2.</translation>
    </message>
    <message>
        <source>The photo is no JPEG.</source>
        <translation>الصورة ليست بصيغة JPEG.</translation>
    </message>
    <message>
        <source>Its colours are stored in another way than as YCbCr or grey.</source>
        <translation>ألوانها مخزّنة بطريقة غير YCbCr أو الرمادي.</translation>
    </message>
    <message>
        <source>It is stored in arithmetic codes.</source>
        <translation>إنها مخزّنة بترميز حسابي.</translation>
    </message>
    <message>
        <source>Its colours are sampled in broken steps.</source>
        <translation>أُخذت عينات ألوانها بخطوات كسرية.</translation>
    </message>
    <message>
        <source>Its colour profile does not say how to come to its colours.</source>
        <translation>لا يبيّن ملف تعريف الألوان كيفية الوصول إلى ألوانها.</translation>
    </message>
    <message>
        <source>This Zelto was built without a JPEG XL encoder.</source>
        <translation>بُنيت هذه النسخة من Zelto بلا مرمّز JPEG XL.</translation>
    </message>
    <message>
        <source>The JPEG XL encoder failed with error %1.</source>
        <translation>فشل ترميز JPEG XL بالخطأ %1.</translation>
    </message>
    <message>
        <source>A picture without pixels cannot be a page.</source>
        <translation>لا يمكن لصورة بلا بكسلات أن تكون صفحة.</translation>
    </message>
    <message>
        <source>A PDF document needs at least one page.</source>
        <translation>يحتاج مستند PDF إلى صفحة واحدة على الأقل.</translation>
    </message>
    <message>
        <source>The PDF document cannot be written: %1</source>
        <translation>تتعذّر كتابة مستند PDF: %1</translation>
    </message>
    <message>
        <source>There is not enough memory for this picture.</source>
        <translation>الذاكرة لا تكفي لهذه الصورة.</translation>
    </message>
    <message>
        <source>This picture would take %1 MB of memory. No more than %2 MB are used for one from a file of this size on this machine.</source>
        <translation>تتطلب هذه الصورة %1 ميغابايت من الذاكرة. لا يُستخدم لصورة من ملف بهذا الحجم على هذا الجهاز أكثر من %2 ميغابايت.</translation>
    </message>
    <message>
        <source>This is a drawing (SVG, PDF or PostScript). Zelto reads photos and other pictures made of pixels: save it as PNG.</source>
        <translation>هذا رسم متجهي (SVG أو PDF أو PostScript). يقرأ Zelto الصور المؤلفة من بكسلات: احفظه بصيغة PNG.</translation>
    </message>
    <message>
        <source>This Zelto was built without a reader of %1 files.</source>
        <translation>بُنيت هذه النسخة من Zelto بلا قارئ لملفات %1.</translation>
    </message>
    <message>
        <source>Image may be damaged or use a file format not supported by Zelto.</source>
        <translation>قد تكون الصورة تالفة أو بصيغة ملف لا يدعمها Zelto.</translation>
    </message>
    <message>
        <source>A picture without pixels cannot be written.</source>
        <translation>لا يمكن كتابة صورة بلا بكسلات.</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels is too large for the %3 format.</source>
        <translation>صورة بحجم %1 × %2 بكسل أكبر مما تتيحه صيغة %3.</translation>
    </message>
    <message>
        <source>The PNG encoder failed: %1</source>
        <translation>فشل ترميز PNG: %1</translation>
    </message>
    <message>
        <source>The TIFF encoder failed: %1</source>
        <translation>فشل ترميز TIFF: %1</translation>
    </message>
    <message>
        <source>This Zelto was built without a WebP encoder.</source>
        <translation>بُنيت هذه النسخة من Zelto بلا مرمّز WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder failed with error %1.</source>
        <translation>فشل ترميز WebP بالخطأ %1.</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>يتعذّر إنشاء المجلد «⁨%1⁩».</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>تتعذّر قراءة «⁨%1⁩».</translation>
    </message>
    <message>
        <source>there is not enough memory to start</source>
        <translation>الذاكرة لا تكفي لبدء التشغيل</translation>
    </message>
    <message>
        <source>No folder can be made in “%1”: %2</source>
        <translation>يتعذّر إنشاء مجلد في «⁨%1⁩»: %2</translation>
    </message>
    <message>
        <source>no thread can be started</source>
        <translation>يتعذّر تشغيل أي مسار تنفيذ</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>تتعذّر كتابة «⁨%1⁩»: %2</translation>
    </message>
    <message>
        <source>The font has the size 0.</source>
        <translation>حجم الخط 0.</translation>
    </message>
    <message>
        <source>The logo has the size 0.</source>
        <translation>حجم الشعار 0.</translation>
    </message>
    <message>
        <source>Shapes and QR codes are not tiled.</source>
        <translation>لا تُكرَّر الأشكال ورموز QR.</translation>
    </message>
    <message>
        <source>QR codes are not turned.</source>
        <translation>لا تُدوَّر رموز QR.</translation>
    </message>
    <message>
        <source>Its paddings and spacings leave no room for a tile.</source>
        <translation>لا تترك هوامشه ومسافاته مكانًا لأي تكرار.</translation>
    </message>
    <message>
        <source>Its kind is unknown.</source>
        <translation>نوعها غير معروف.</translation>
    </message>
    <message>
        <source>The logo cannot be read.</source>
        <translation>تتعذّر قراءة الشعار.</translation>
    </message>
    <message>
        <source>The logo “%1” cannot be read.</source>
        <translation>تتعذّر قراءة الشعار «%1».</translation>
    </message>
    <message>
        <source>The text is empty once its macros are filled in.</source>
        <translation>يصبح النص فارغًا بعد ملء وحدات الماكرو فيه.</translation>
    </message>
    <message>
        <source>No installed font has these letters: %1</source>
        <translation>لا يحتوي أي خط مثبّت على هذه الأحرف: %1</translation>
    </message>
    <message>
        <source>The text is too long for a QR code.</source>
        <translation>النص أطول مما يتسع له رمز QR.</translation>
    </message>
    <message>
        <source>The QR code is too small to be read: its squares are finer than a pixel.</source>
        <translation>رمز QR أصغر من أن يُقرأ: مربعاته أدق من بكسل واحد.</translation>
    </message>
    <message>
        <source>It lies outside the photo.</source>
        <translation>تقع خارج الصورة.</translation>
    </message>
    <message>
        <source>Less than a tenth of it lies on the photo.</source>
        <translation>يقع أقل من عُشرها على الصورة.</translation>
    </message>
    <message>
        <source>The shape has no area.</source>
        <translation>ليس للشكل مساحة.</translation>
    </message>
    <message>
        <source>Bubblegum</source>
        <translation>علكة</translation>
    </message>
    <message>
        <source>Delhi</source>
        <translation>دلهي</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>أرض</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>مساء</translation>
    </message>
    <message>
        <source>Lumina</source>
        <translation>لومينا</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>ماتريكس</translation>
    </message>
    <message>
        <source>Old TV</source>
        <translation>تلفاز قديم</translation>
    </message>
    <message>
        <source>Paris</source>
        <translation>باريس</translation>
    </message>
    <message>
        <source>Rome</source>
        <translation>روما</translation>
    </message>
    <message>
        <source>Vintage</source>
        <translation>عتيق</translation>
    </message>
    <message>
        <source>Keyhole</source>
        <translation>ثقب المفتاح</translation>
    </message>
    <message>
        <source>Haze</source>
        <translation>ضباب</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Watermark %1: %2</source>
        <translation>العلامة المائية %1: %2</translation>
    </message>
    <message>
        <source>There is not enough memory for this photo.</source>
        <translation>الذاكرة لا تكفي لهذه الصورة.</translation>
    </message>
    <message>
        <source>Its border and shadow would make this photo too large.</source>
        <translation>سيجعل الإطار والظل هذه الصورة أكبر مما ينبغي.</translation>
    </message>
    <message>
        <source>try &apos;zelto --help&apos;</source>
        <translation>جرّب &apos;zelto --help&apos;</translation>
    </message>
    <message>
        <source>puts watermarks on batches of photos, in a window</source>
        <translation>يضع علامات مائية على دفعات من الصور، في نافذة</translation>
    </message>
    <message>
        <source>the window, with the stack of last time</source>
        <translation>النافذة، مع مجموعة المرة السابقة</translation>
    </message>
    <message>
        <source>with the photos of a folder in the list</source>
        <translation>مع صور مجلد في القائمة</translation>
    </message>
    <message>
        <source>with a saved setting and some photos</source>
        <translation>مع إعداد محفوظ وبعض الصور</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>start with a saved setting, or with the setting file of this path</source>
        <translation>البدء بإعداد محفوظ، أو بملف الإعداد في هذا المسار</translation>
    </message>
    <message>
        <source>print the manual page (man), the completion for bash, zsh or fish, or all options in markdown</source>
        <translation>طباعة صفحة الدليل (man) أو الإكمال لـ bash أو zsh أو fish أو كل الخيارات بصيغة markdown</translation>
    </message>
    <message>
        <source>print this help</source>
        <translation>طباعة هذه المساعدة</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>طباعة الإصدار</translation>
    </message>
    <message>
        <source>Exit status</source>
        <translation>حالة الخروج</translation>
    </message>
    <message>
        <source>0: the window was closed.
2: the command line cannot be used.</source>
        <translation>0: أُغلقت النافذة.
2: لا يمكن استخدام سطر الأوامر.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.
~/.local/share/Zelto/Copyright.xml: your copyright data.</source>
        <translation>~/.local/share/Zelto/Settings/*.zcs: الإعدادات المحفوظة، ملف لكل منها.
~/.local/share/Zelto/Copyright.xml: بيانات حقوق النشر.</translation>
    </message>
    <message>
        <source>the watched folder is gone; waiting for it to come back</source>
        <translation>اختفى المجلد المراقَب؛ بانتظار عودته</translation>
    </message>
    <message>
        <source>the system tells of changes in no more folders; they are listed every 10 seconds instead (%1 says how many there may be)</source>
        <translation>لا يُبلغ النظام عن تغييرات في مجلدات أكثر؛ فتُفحص كل 10 ثوانٍ بدلاً من ذلك (يحدد %1 عددها الأقصى)</translation>
    </message>
    <message>
        <source>%1 takes one of %2, not “%3”</source>
        <translation>يقبل %1 واحدًا من %2، لا «%3»</translation>
    </message>
    <message>
        <source>%1 takes one of %2, not “%3”; did you mean “%4”?</source>
        <translation>يقبل %1 واحدًا من %2، لا «%3»؛ هل تقصد «%4»؟</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 on, not “%3”</source>
        <translation>يقبل %1 عددًا صحيحًا من %2 فصاعدًا، لا «%3»</translation>
    </message>
    <message>
        <source>%1 takes a whole number from %2 to %3, not “%4”</source>
        <translation>يقبل %1 عددًا صحيحًا من %2 إلى %3، لا «%4»</translation>
    </message>
    <message>
        <source>%1 cannot be given together with another way to resize</source>
        <translation>لا يجتمع %1 مع طريقة أخرى لتغيير الحجم</translation>
    </message>
    <message>
        <source>%1 takes WIDTHxHEIGHT in whole numbers from 0 on, such as 800x600, not “%2”</source>
        <translation>يقبل %1 العرضxالارتفاع بأعداد صحيحة من 0 فصاعدًا، مثل 800x600، لا «%2»</translation>
    </message>
    <message>
        <source>%1 cannot be %2: this machine has no encoder for it; zelto-batch --doctor tells which formats it can write</source>
        <translation>لا يمكن أن يكون %1 هو %2: ليس على هذا الجهاز مرمّز له؛ يبيّن zelto-batch --doctor الصيغ التي يمكن كتابتها</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>يحتاج %1 إلى قيمة</translation>
    </message>
    <message>
        <source>%1 and another option that only tells or prints something cannot be given together</source>
        <translation>لا يجتمع %1 مع خيار آخر يقتصر على الإبلاغ أو الطباعة</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>المطلوب</translation>
    </message>
    <message>
        <source>a saved setting&apos;s name, or the path of a .zcs file (needed)</source>
        <translation>اسم إعداد محفوظ، أو مسار ملف .zcs (مطلوب)</translation>
    </message>
    <message>
        <source>output folder, made when missing (needed, unless --options names one)</source>
        <translation>مجلد الإخراج، ويُنشأ إن لم يوجد (مطلوب ما لم يحدده --options)</translation>
    </message>
    <message>
        <source>start from an OutputSettings.xml, as --print-options makes one; the other options override it</source>
        <translation>الانطلاق من OutputSettings.xml كما ينشئه --print-options؛ وللخيارات الأخرى الأولوية</translation>
    </message>
    <message>
        <source>print what would be written, and write nothing</source>
        <translation>طباعة ما كان سيُكتب، دون كتابة شيء</translation>
    </message>
    <message>
        <source>go on until interrupted: photos that arrive in the named folders are written at once</source>
        <translation>الاستمرار حتى المقاطعة: تُكتب الصور التي تصل إلى المجلدات المذكورة فورًا</translation>
    </message>
    <message>
        <source>Format and size</source>
        <translation>الصيغة والحجم</translation>
    </message>
    <message>
        <source>same, jpg, png, tiff, bmp, gif, pdf, webp, avif, jxl or heic (default: same)</source>
        <translation>same أو jpg أو png أو tiff أو bmp أو gif أو pdf أو webp أو avif أو jxl أو heic (المبدئي: same)</translation>
    </message>
    <message>
        <source>quality of JPEG, WebP, AVIF, JPEG XL and HEIC (default: 90); at 100 WebP, JPEG XL and, where its encoder can, AVIF are lossless</source>
        <translation>جودة JPEG وWebP وAVIF وJPEG XL وHEIC (المبدئي: 90)؛ عند 100 يكون WebP وJPEG XL، وAVIF إن أمكن مرمّزه، بلا فقد</translation>
    </message>
    <message>
        <source>JPEG to JPEG: only the blocks that a watermark touches are encoded again, with the photo&apos;s own quality and chroma (on halved chroma colored edges of marks are softer); photos it cannot be done for are encoded as usual, and the report says why</source>
        <translation>من JPEG إلى JPEG: يُعاد ترميز الكتل التي تلمسها علامة مائية فقط، بجودة الصورة ودقة ألوانها (مع دقة الألوان المنصّفة تكون الحواف الملونة أنعم)؛ وما لا يمكن فيه ذلك يُرمَّز كالمعتاد ويذكر التقرير السبب</translation>
    </message>
    <message>
        <source>resize each side by its percentage</source>
        <translation>تغيير كل ضلع بنسبته المئوية</translation>
    </message>
    <message>
        <source>resize to a width and height in pixels, 0 for one that is not given</source>
        <translation>تغيير الحجم إلى عرض وارتفاع بالبكسل، و0 لما لم يُحدَّد</translation>
    </message>
    <message>
        <source>resize the longer side to N pixels</source>
        <translation>تغيير الضلع الأطول إلى N بكسل</translation>
    </message>
    <message>
        <source>keep proportions when resizing</source>
        <translation>الحفاظ على التناسب عند تغيير الحجم</translation>
    </message>
    <message>
        <source>never make a photo larger</source>
        <translation>عدم تكبير أي صورة</translation>
    </message>
    <message>
        <source>all photos into one PDF (with --format pdf)</source>
        <translation>كل الصور في ملف PDF واحد (مع --format pdf)</translation>
    </message>
    <message>
        <source>Names and folders</source>
        <translation>الأسماء والمجلدات</translation>
    </message>
    <message>
        <source>output name: [O] original name, [#] to [####] number in the list, [D] today as MMDDYYYY, [DD] as DDMMYYYY, and the macros of texts, as in &apos;&lt;&lt;EXIF:DateTimeOriginal[Y-M-D]&gt;&gt;_[###]&apos;</source>
        <translation>اسم الملف الناتج: [O] الاسم الأصلي، ومن [#] إلى [####] الرقم في القائمة، و[D] تاريخ اليوم بصيغة MMDDYYYY، و[DD] بصيغة DDMMYYYY، ووحدات ماكرو النصوص، مثل &apos;&lt;&lt;EXIF:DateTimeOriginal[Y-M-D]&gt;&gt;_[###]&apos;</translation>
    </message>
    <message>
        <source>mirror the source folders in the output folder</source>
        <translation>محاكاة مجلدات المصدر في مجلد الإخراج</translation>
    </message>
    <message>
        <source>photos of the run with the same output: replace (with a warning), number, skip or fail (default: replace)</source>
        <translation>صور التشغيل ذات الملف الناتج نفسه: replace (مع تحذير) أو number أو skip أو fail (المبدئي: replace)</translation>
    </message>
    <message>
        <source>outputs that stand there before the run: replace, number, skip or fail (default: replace)</source>
        <translation>ملفات موجودة قبل التشغيل: replace أو number أو skip أو fail (المبدئي: replace)</translation>
    </message>
    <message>
        <source>allow outputs that replace photos of the list</source>
        <translation>السماح بملفات ناتجة تحل محل صور القائمة</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>البيانات الوصفية</translation>
    </message>
    <message>
        <source>all, copyright, no-gps (positions go, names of places stay) or none (default: all)</source>
        <translation>all أو copyright أو no-gps (تُزال المواقع وتبقى أسماء الأماكن) أو none (المبدئي: all)</translation>
    </message>
    <message>
        <source>a Copyright.xml to write into the outputs (default: your own, if the setting asks for it)</source>
        <translation>ملف Copyright.xml يُكتب في الملفات الناتجة (المبدئي: ملفك إن طلبه الإعداد)</translation>
    </message>
    <message>
        <source>Which photos</source>
        <translation>أي الصور</translation>
    </message>
    <message>
        <source>scan sub-folders too</source>
        <translation>فحص المجلدات الفرعية أيضًا</translation>
    </message>
    <message>
        <source>what a folder scan takes, of jpeg,png,tiff,gif,bmp (default: these) and heic,avif,webp,jxl,raw</source>
        <translation>ما يأخذه فحص المجلد، من jpeg,png,tiff,gif,bmp (المبدئي: هذه) وheic,avif,webp,jxl,raw</translation>
    </message>
    <message>
        <source>only every Nth photo of the list, from I on (0-based); auto, auto/N: as a Slurm array or a Kubernetes Job has it</source>
        <translation>كل صورة رقم N من القائمة فقط، بدءًا من I (العد من 0)؛ auto وauto/N: كما تحدده مصفوفة Slurm أو مهمة Kubernetes</translation>
    </message>
    <message>
        <source>The run</source>
        <translation>التشغيل</translation>
    </message>
    <message>
        <source>photos worked on at a time (default: the number of cores)</source>
        <translation>عدد الصور المعالجة معًا (المبدئي: عدد الأنوية)</translation>
    </message>
    <message>
        <source>stop or continue after 3 failures in a row (default: stop, with --watch: continue)</source>
        <translation>stop أو continue بعد 3 إخفاقات متتالية (المبدئي: stop، ومع --watch: continue)</translation>
    </message>
    <message>
        <source>a photo with a warning fails and is not written</source>
        <translation>تُعدّ الصورة ذات التحذير فاشلة ولا تُكتب</translation>
    </message>
    <message>
        <source>What is printed</source>
        <translation>ما يُطبع</translation>
    </message>
    <message>
        <source>report as JSON on standard output; with --watch a line a photo</source>
        <translation>تقرير JSON على الخرج القياسي؛ ومع --watch سطر لكل صورة</translation>
    </message>
    <message>
        <source>print nothing but errors</source>
        <translation>عدم طباعة شيء سوى الأخطاء</translation>
    </message>
    <message>
        <source>no colors</source>
        <translation>بلا ألوان</translation>
    </message>
    <message>
        <source>plain lines instead of a progress bar</source>
        <translation>أسطر بسيطة بدلاً من شريط التقدّم</translation>
    </message>
    <message>
        <source>Instead of a run</source>
        <translation>بدلاً من التشغيل</translation>
    </message>
    <message>
        <source>the names of the saved settings</source>
        <translation>أسماء الإعدادات المحفوظة</translation>
    </message>
    <message>
        <source>the fonts that texts can be set in</source>
        <translation>الخطوط المتاحة للنصوص</translation>
    </message>
    <message>
        <source>what a setting holds, layer by layer, in words</source>
        <translation>محتوى إعداد، طبقة طبقة، بالكلمات</translation>
    </message>
    <message>
        <source>an options file that says what the other options on the line say, to be kept for --options</source>
        <translation>ملف خيارات يقول ما تقوله الخيارات الأخرى في السطر، يُحفظ من أجل --options</translation>
    </message>
    <message>
        <source>whether all is there that a run needs: exiftool, formats, fonts, folders, room, memory; exit status 1 when something is missing</source>
        <translation>هل يتوفر كل ما يحتاجه التشغيل: exiftool والصيغ والخطوط والمجلدات والمساحة والذاكرة؛ حالة الخروج 1 إن نقص شيء</translation>
    </message>
    <message>
        <source>the arguments are JSON reports of the shards of one list: print one report, and exit as one run would</source>
        <translation>الوسائط تقارير JSON لأجزاء قائمة واحدة: طباعة تقرير واحد والخروج كما يخرج تشغيل واحد</translation>
    </message>
    <message>
        <source>the manual page (man), the completion for bash, zsh or fish, or all options in markdown</source>
        <translation>صفحة الدليل (man) أو الإكمال لـ bash أو zsh أو fish أو كل الخيارات بصيغة markdown</translation>
    </message>
    <message>
        <source>this help</source>
        <translation>هذه المساعدة</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>there is no options file “%1”</source>
        <translation>لا يوجد ملف خيارات «%1»</translation>
    </message>
    <message>
        <source>“%1” names no output folder; name one with --output</source>
        <translation>لا يحدد «%1» مجلد إخراج؛ حدده بالخيار --output</translation>
    </message>
    <message>
        <source>--combine-pdf needs --format pdf</source>
        <translation>يتطلب --combine-pdf الخيار --format pdf</translation>
    </message>
    <message>
        <source>a combined PDF is one document, which --shard cannot divide; leave one of them out</source>
        <translation>ملف PDF المجمّع مستند واحد لا يقسمه --shard؛ احذف أحدهما</translation>
    </message>
    <message>
        <source>there is no copyright file “%1”</source>
        <translation>لا يوجد ملف حقوق نشر «%1»</translation>
    </message>
    <message>
        <source>there is no photo or folder “%1”</source>
        <translation>لا توجد صورة ولا مجلد باسم «%1»</translation>
    </message>
    <message>
        <source>no photo was found; see --extensions and --recursive for what a folder scan takes, and name GIF files themselves</source>
        <translation>لم يُعثر على صور؛ راجع --extensions و--recursive لما يأخذه فحص المجلد، واذكر ملفات GIF بأسمائها</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of the photos would be replaced by their outputs, the first being “%1”; choose another --output or a --rename, or allow it with --overwrite-originals</source>
        <translation>
            <numerusform>لن تُستبدل أي صورة («%1»)؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
            <numerusform>ستحل ملفات ناتجة محل صورة واحدة هي «%1»؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
            <numerusform>ستحل الملفات الناتجة محل صورتين أولاهما «%1»؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
            <numerusform>ستحل الملفات الناتجة محل %Ln صور أولاها «%1»؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
            <numerusform>ستحل الملفات الناتجة محل %Ln صورة أولاها «%1»؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
            <numerusform>ستحل الملفات الناتجة محل %Ln صورة أولاها «%1»؛ اختر --output آخر أو --rename أو اسمح بذلك بالخيار --overwrite-originals</numerusform>
        </translation>
    </message>
    <message>
        <source>the output folder “%1” cannot be made</source>
        <translation>يتعذّر إنشاء مجلد الإخراج «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>لم تُكتب أي صورة</numerusform>
            <numerusform>كُتبت واحدة</numerusform>
            <numerusform>كُتبت اثنتان</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>لم تفشل أي صورة</numerusform>
            <numerusform>فشلت واحدة</numerusform>
            <numerusform>فشلت اثنتان</numerusform>
            <numerusform>فشلت %Ln</numerusform>
            <numerusform>فشلت %Ln</numerusform>
            <numerusform>فشلت %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not run</source>
        <translation>
            <numerusform>لم تُترك أي صورة</numerusform>
            <numerusform>لم تُعالَج واحدة</numerusform>
            <numerusform>لم تُعالَج اثنتان</numerusform>
            <numerusform>لم تُعالَج %Ln</numerusform>
            <numerusform>لم تُعالَج %Ln</numerusform>
            <numerusform>لم تُعالَج %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln with a warning</source>
        <translation>
            <numerusform>بلا تحذيرات</numerusform>
            <numerusform>واحدة بتحذير</numerusform>
            <numerusform>اثنتان بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
        </translation>
    </message>
    <message>
        <source>Dry run: nothing was written.</source>
        <translation>تشغيل تجريبي: لم يُكتب شيء.</translation>
    </message>
    <message>
        <source>--watch cannot be given together with --%1</source>
        <translation>لا يجتمع --watch مع --%1</translation>
    </message>
    <message>
        <source>name the reports to merge</source>
        <translation>اذكر التقارير المراد دمجها</translation>
    </message>
    <message>
        <source>“%1” has no meaning here; leave it out</source>
        <translation>لا معنى لـ«%1» هنا؛ احذفه</translation>
    </message>
    <message>
        <source>name the watermark setting with --setting; --list-settings lists those that are saved</source>
        <translation>حدد إعداد العلامات المائية بالخيار --setting؛ يسرد --list-settings الإعدادات المحفوظة</translation>
    </message>
    <message>
        <source>name the photos or folders to watermark</source>
        <translation>اذكر الصور أو المجلدات المراد وضع علامات مائية عليها</translation>
    </message>
    <message>
        <source>name the output folder with --output</source>
        <translation>حدد مجلد الإخراج بالخيار --output</translation>
    </message>
    <message>
        <source>stamps the watermarks of a saved setting onto photos</source>
        <translation>يضع العلامات المائية لإعداد محفوظ على الصور</translation>
    </message>
    <message>
        <source>the photos of a folder, with the saved setting “Holiday”</source>
        <translation>صور مجلد، بالإعداد المحفوظ «Holiday»</translation>
    </message>
    <message>
        <source>smaller JPEG copies under new names, with a setting file</source>
        <translation>نسخ JPEG أصغر بأسماء جديدة، بملف إعداد</translation>
    </message>
    <message>
        <source>what a whole tree of folders would become, without writing anything</source>
        <translation>ما ستصير إليه شجرة مجلدات كاملة، دون كتابة شيء</translation>
    </message>
    <message>
        <source>one PDF, a page a photo</source>
        <translation>ملف PDF واحد، صفحة لكل صورة</translation>
    </message>
    <message>
        <source>every photo that is put into the folder “inbox”, until Ctrl+C</source>
        <translation>كل صورة توضع في المجلد «inbox»، حتى Ctrl+C</translation>
    </message>
    <message>
        <source>the third of eight parts of one batch, each on a machine of its own</source>
        <translation>الجزء الثالث من ثمانية أجزاء لدفعة واحدة، كل منها على جهاز</translation>
    </message>
    <message>
        <source>0: all photos were written; warnings do not change it.
1: some photos failed, or repeated failures stopped the run; with --doctor: something is missing.
2: the command line or a named file cannot be used, and nothing was written.
130: interrupted. The photo in hand is finished first, and a second interrupt ends the program at once. This is how --watch ends, too. No file is ever left half-written.</source>
        <translation>0: كُتبت كل الصور؛ ولا تغيّر التحذيرات ذلك.
1: فشلت بعض الصور، أو أوقفت إخفاقات متكررة التشغيل؛ ومع --doctor: شيء ما ناقص.
2: لا يمكن استخدام سطر الأوامر أو أحد الملفات المذكورة، ولم يُكتب شيء.
130: قوطع. تُستكمل الصورة الجارية أولاً، وتُنهي مقاطعة ثانية البرنامج فورًا. وهكذا ينتهي --watch أيضًا. ولا يبقى أي ملف مكتوبًا نصفه.</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>متغيرات البيئة</translation>
    </message>
    <message>
        <source>NO_COLOR, TERM: no colors where the first is set, and neither colors nor a progress bar where the second is “dumb” or missing, or where standard error is no terminal.
ZELTO_SHARD, SLURM_ARRAY_TASK_ID and its kin, JOB_COMPLETION_INDEX: what --shard auto reads.
XDG_DATA_HOME: where settings are kept, instead of ~/.local/share.
TMPDIR: where temporary files go, instead of /tmp.
ZELTO_EXIFTOOL: another exiftool program than the one that is found.</source>
        <translation>NO_COLOR وTERM: بلا ألوان إن ضُبط الأول، وبلا ألوان ولا شريط تقدّم إن كان الثاني «dumb» أو مفقودًا، أو لم يكن خرج الأخطاء طرفية.
ZELTO_SHARD وSLURM_ARRAY_TASK_ID وما يتصل به وJOB_COMPLETION_INDEX: ما يقرؤه --shard auto.
XDG_DATA_HOME: مكان حفظ الإعدادات بدلاً من ~/.local/share.
TMPDIR: مكان الملفات المؤقتة بدلاً من /tmp.
ZELTO_EXIFTOOL: برنامج exiftool غير الذي يُعثر عليه.</translation>
    </message>
    <message>
        <source>~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.
~/.local/share/Zelto/Copyright.xml: your copyright data.
A run changes none of them.</source>
        <translation>~/.local/share/Zelto/Settings/*.zcs: الإعدادات المحفوظة، ملف لكل منها.
~/.local/share/Zelto/Copyright.xml: بيانات حقوق النشر.
لا يغيّر التشغيل أيًا منها.</translation>
    </message>
    <message>
        <source>Without libraries for newer formats</source>
        <translation>بلا مكتبات للصيغ الأحدث</translation>
    </message>
    <message>
        <source>With %1</source>
        <translation>مع %1</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 صورة/ث، بقي %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>ناقص</translation>
    </message>
    <message>
        <source>exiftool</source>
        <translation>exiftool</translation>
    </message>
    <message>
        <source>%1; photos would be written without their metadata. Install exiftool (Debian: libimage-exiftool-perl)</source>
        <translation>%1؛ ستُكتب الصور بلا بياناتها الوصفية. ثبّت exiftool (في دبيان: libimage-exiftool-perl)</translation>
    </message>
    <message>
        <source>previews in raw files</source>
        <translation>معاينات الملفات الخام</translation>
    </message>
    <message>
        <source>formats read</source>
        <translation>الصيغ المقروءة</translation>
    </message>
    <message>
        <source>formats written</source>
        <translation>الصيغ المكتوبة</translation>
    </message>
    <message>
        <source>%1; this machine has no encoder for %2</source>
        <translation>%1؛ ليس على هذا الجهاز مرمّز لـ %2</translation>
    </message>
    <message>
        <source>“%1” cannot be written to; choose another folder or mend its permissions</source>
        <translation>لا يمكن الكتابة في «%1»؛ اختر مجلدًا آخر أو أصلح أذوناته</translation>
    </message>
    <message>
        <source>%1: only %2 are free; make room</source>
        <translation>%1: المساحة الحرة %2 فقط؛ أفسح مكانًا</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <translation>%1، %2 حرة</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>الخطوط</translation>
    </message>
    <message numerus="yes">
        <source>%Ln families</source>
        <translation>
            <numerusform>لا عائلات</numerusform>
            <numerusform>عائلة واحدة</numerusform>
            <numerusform>عائلتان</numerusform>
            <numerusform>%Ln عائلات</numerusform>
            <numerusform>%Ln عائلة</numerusform>
            <numerusform>%Ln عائلة</numerusform>
        </translation>
    </message>
    <message>
        <source>none is installed (Debian: fonts-dejavu)</source>
        <translation>لا خط مثبّت (في دبيان: fonts-dejavu)</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message numerus="yes">
        <source>%Ln saved</source>
        <translation>
            <numerusform>لا محفوظ</numerusform>
            <numerusform>واحد محفوظ</numerusform>
            <numerusform>اثنان محفوظان</numerusform>
            <numerusform>%Ln محفوظة</numerusform>
            <numerusform>%Ln محفوظًا</numerusform>
            <numerusform>%Ln محفوظ</numerusform>
        </translation>
    </message>
    <message>
        <source>temporary files</source>
        <translation>الملفات المؤقتة</translation>
    </message>
    <message>
        <source>output</source>
        <translation>الإخراج</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>%1, of which a run holds at most %2 in photos</source>
        <translation>%1، يشغل التشغيل منها بالصور %2 على الأكثر</translation>
    </message>
    <message>
        <source>jobs</source>
        <translation>المهام</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photos at a time</source>
        <translation>
            <numerusform>لا صور معًا</numerusform>
            <numerusform>صورة واحدة في المرة</numerusform>
            <numerusform>صورتان معًا</numerusform>
            <numerusform>%Ln صور معًا</numerusform>
            <numerusform>%Ln صورة معًا</numerusform>
            <numerusform>%Ln صورة معًا</numerusform>
        </translation>
    </message>
    <message>
        <source>no setting is saved yet; settings are kept in “%1”</source>
        <translation>لم يُحفظ أي إعداد بعد؛ تُحفظ الإعدادات في «%1»</translation>
    </message>
    <message>
        <source>the result could not be printed</source>
        <translation>تعذّرت طباعة النتيجة</translation>
    </message>
    <message>
        <source>try &apos;zelto-batch --help&apos;</source>
        <translation>جرّب &apos;zelto-batch --help&apos;</translation>
    </message>
    <message>
        <source>“%1” is no report of a shard</source>
        <translation>ليس «%1» تقرير جزء</translation>
    </message>
    <message>
        <source>“%1” is no report of a shard: “%2”</source>
        <translation>ليس «%1» تقرير جزء: «%2»</translation>
    </message>
    <message>
        <source>shard %1 could not be run (“%2”): %3</source>
        <translation>تعذّر تشغيل الجزء %1 («%2»): %3</translation>
    </message>
    <message>
        <source>“%1” tells of the photo with the index %2, which shard %3 does not have</source>
        <translation>يذكر «%1» الصورة ذات الفهرس %2 التي ليست في الجزء %3</translation>
    </message>
    <message>
        <source>“%1” tells of the photo with the index %2 twice</source>
        <translation>يذكر «%1» الصورة ذات الفهرس %2 مرتين</translation>
    </message>
    <message>
        <source>“%1” tells of %2 photos, but shard %3 has %4</source>
        <translation>يذكر «%1» عددًا من الصور قدره %2، لكن في الجزء %3 العدد %4</translation>
    </message>
    <message>
        <source>“%1” is shard %2 of %3 photos, and “%4” is shard %5 of %6: they are not of one list</source>
        <translation>«%1» هو الجزء %2 من %3 صور، و«%4» هو الجزء %5 من %6: ليسا من قائمة واحدة</translation>
    </message>
    <message>
        <source>shard %1 is there twice: “%2” and “%3”</source>
        <translation>الجزء %1 موجود مرتين: «%2» و«%3»</translation>
    </message>
    <message>
        <source>the reports of these shards are missing: %1</source>
        <translation>تنقص تقارير هذه الأجزاء: %1</translation>
    </message>
    <message>
        <source>Stopped: 3 photos in a row failed. --on-repeated-failure continue goes on.</source>
        <translation>أُوقف: فشلت 3 صور متتالية. للمتابعة استخدم --on-repeated-failure continue.</translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>قوطع.</translation>
    </message>
    <message>
        <source>The combined PDF was not finished.</source>
        <translation>لم يكتمل ملف PDF المجمّع.</translation>
    </message>
    <message>
        <source>%1: encoded as usual. %2</source>
        <translation>%1: رُمّزت كالمعتاد. %2</translation>
    </message>
    <message>
        <source>the combined PDF could not be written: %1</source>
        <translation>تعذّرت كتابة ملف PDF المجمّع: %1</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1” (none is saved yet)</source>
        <translation>لا يوجد إعداد ولا ملف «%1» (لم يُحفظ أي إعداد بعد)</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1” (saved are: %2)</source>
        <translation>لا يوجد إعداد ولا ملف «%1» (المحفوظة: %2)</translation>
    </message>
    <message>
        <source>there is no setting and no file “%1”; did you mean “%2”? (saved are: %3)</source>
        <translation>لا يوجد إعداد ولا ملف «%1»؛ هل تقصد «%2»؟ (المحفوظة: %3)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 ٪</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 بكسل</translation>
    </message>
    <message>
        <source>%1 % of the shorter side</source>
        <translation>%1 ٪ من الضلع الأقصر</translation>
    </message>
    <message>
        <source>none</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>%1, %2 opaque</source>
        <translation>%1، معتم بنسبة %2</translation>
    </message>
    <message>
        <source>of the photo&apos;s height</source>
        <translation>من ارتفاع الصورة</translation>
    </message>
    <message>
        <source>of the photo&apos;s longer side</source>
        <translation>من الضلع الأطول للصورة</translation>
    </message>
    <message>
        <source>of the photo&apos;s width</source>
        <translation>من عرض الصورة</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>center</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>أسفل اليمين</translation>
    </message>
    <message>
        <source>%1 from the left, %2 from the top</source>
        <translation>%1 من اليسار، %2 من الأعلى</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>left %1</source>
        <translation>يسار %1</translation>
    </message>
    <message>
        <source>top %1</source>
        <translation>أعلى %1</translation>
    </message>
    <message>
        <source>right %1</source>
        <translation>يمين %1</translation>
    </message>
    <message>
        <source>bottom %1</source>
        <translation>أسفل %1</translation>
    </message>
    <message>
        <source>across, gaps of %1</source>
        <translation>أفقيًا، بمسافات %1</translation>
    </message>
    <message>
        <source>down, gaps of %1</source>
        <translation>رأسيًا، بمسافات %1</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>غامق</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>تحته خط</translation>
    </message>
    <message>
        <source>struck through</source>
        <translation>يتوسطه خط</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>الظل</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>التأثير</translation>
    </message>
    <message>
        <source>embossed, faces left out</source>
        <translation>بارز، من دون الأوجه</translation>
    </message>
    <message>
        <source>embossed</source>
        <translation>بارز</translation>
    </message>
    <message>
        <source>its own</source>
        <translation>حجمه الأصلي</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 في %2</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Kept in the setting</source>
        <translation>محفوظ في الإعداد</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>متروك</translation>
    </message>
    <message>
        <source>grayscale</source>
        <translation>تدرّج الرمادي</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>الأضلاع</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>الشكل</translation>
    </message>
    <message>
        <source>Logo “%1”</source>
        <translation>شعار «%1»</translation>
    </message>
    <message>
        <source>Text “%1”</source>
        <translation>نص «%1»</translation>
    </message>
    <message>
        <source>QR code “%1”</source>
        <translation>رمز QR «%1»</translation>
    </message>
    <message>
        <source>unknown kind %1, which draws nothing</source>
        <translation>نوع غير معروف %1، لا يرسم شيئًا</translation>
    </message>
    <message>
        <source>Own name</source>
        <translation>الاسم الخاص</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>الهوامش</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>التدوير</translation>
    </message>
    <message>
        <source>%1° clockwise</source>
        <translation>%1° باتجاه عقارب الساعة</translation>
    </message>
    <message>
        <source>Tiled</source>
        <translation>التكرار</translation>
    </message>
    <message>
        <source>%1 (switched off)</source>
        <translation>%1 (متوقف)</translation>
    </message>
    <message>
        <source>%1 on all sides, %2</source>
        <translation>%1 في كل الجهات، %2</translation>
    </message>
    <message>
        <source>top %1, left %2, right %3, bottom %4, %5</source>
        <translation>أعلى %1، يسار %2، يمين %3، أسفل %4، %5</translation>
    </message>
    <message>
        <source>%1; watermarks may cover it</source>
        <translation>%1؛ يمكن للعلامات المائية تغطيته</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>blur %1, distance %2, direction %3°, %4</source>
        <translation>تمويه %1، مسافة %2، اتجاه %3°، %4</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>المرشّح</translation>
    </message>
    <message>
        <source>your copyright data go into the outputs</source>
        <translation>تُكتب بيانات حقوق النشر في الملفات الناتجة</translation>
    </message>
    <message>
        <source>Setting “%1”</source>
        <translation>الإعداد «%1»</translation>
    </message>
    <message>
        <source>takes I/N with I from 0 to N - 1, such as 0/4, not “%1”</source>
        <translation>يقبل I/N حيث I من 0 إلى N - 1، مثل 0/4، لا «%1»</translation>
    </message>
    <message>
        <source>auto found neither ZELTO_SHARD nor a Slurm array; set ZELTO_SHARD to I/N</source>
        <translation>لم يجد auto لا ZELTO_SHARD ولا مصفوفة Slurm؛ اضبط ZELTO_SHARD على I/N</translation>
    </message>
    <message>
        <source>%1 needs JOB_COMPLETION_INDEX, as an indexed Kubernetes Job sets it</source>
        <translation>يحتاج %1 إلى JOB_COMPLETION_INDEX كما تضبطه مهمة Kubernetes مفهرسة</translation>
    </message>
    <message>
        <source>watching %1; Ctrl+C ends it</source>
        <translation>جارٍ مراقبة %1؛ يُنهيها Ctrl+C</translation>
    </message>
    <message>
        <source>its output “%1” would replace the photo itself</source>
        <translation>سيحل الملف الناتج «%1» محل الصورة نفسها</translation>
    </message>
    <message>
        <source>was taken away before its turn; nothing was written</source>
        <translation>أُزيلت قبل دورها؛ لم يُكتب شيء</translation>
    </message>
    <message>
        <source>will be tried again until it can be written</source>
        <translation>ستُعاد المحاولة حتى تمكن كتابتها</translation>
    </message>
    <message>
        <source>a combined PDF would never be finished by --watch; leave one of them out</source>
        <translation>لن يكتمل ملف PDF مجمّع مع --watch أبدًا؛ احذف أحدهما</translation>
    </message>
    <message>
        <source>the numbers of --rename begin again whenever --watch is started; say with --existing what becomes of outputs that stand there: number, skip, fail or replace</source>
        <translation>تبدأ أرقام --rename من جديد كلما بدأ --watch؛ حدد بالخيار --existing مصير الملفات الموجودة: number أو skip أو fail أو replace</translation>
    </message>
    <message>
        <source>--watch takes folders, and “%1” is none</source>
        <translation>يقبل --watch مجلدات، و«%1» ليس مجلدًا</translation>
    </message>
    <message>
        <source>outputs in the watched folder “%1” would be marked again and again; choose another --output</source>
        <translation>ستوضع العلامات على الملفات الناتجة في المجلد المراقَب «%1» مرة بعد مرة؛ اختر --output آخر</translation>
    </message>
    <message>
        <source>with --keep-structure, outputs in “%1” could get into the watched folder “%2” and be marked again; choose another --output</source>
        <translation>مع --keep-structure قد تصل الملفات الناتجة في «%1» إلى المجلد المراقَب «%2» فتوضع عليها العلامات ثانية؛ اختر --output آخر</translation>
    </message>
    <message>
        <source>there is no option “%1”</source>
        <translation>لا يوجد خيار «%1»</translation>
    </message>
    <message>
        <source>there is no option “%1”; did you mean “%2”?</source>
        <translation>لا يوجد خيار «%1»؛ هل تقصد «%2»؟</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>أمثلة</translation>
    </message>
    <message>
        <source>All options of %1</source>
        <translation>جميع خيارات %1</translation>
    </message>
    <message>
        <source>option</source>
        <translation>الخيار</translation>
    </message>
    <message>
        <source>meaning</source>
        <translation>المعنى</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>انظر أيضًا</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>أوامر المستخدم</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>الاستخدام: %1</translation>
    </message>
    <message>
        <source>open a window of its own; otherwise the window that is open already takes the photos, folders and setting</source>
        <translation>فتح نافذة مستقلة؛ وإلا تستقبل النافذة المفتوحة مسبقًا الصور والمجلدات والإعداد</translation>
    </message>
    <message>
        <source>Paste Error</source>
        <translation>خطأ في اللصق</translation>
    </message>
    <message>
        <source>Longer Side</source>
        <translation>الضلع الأطول</translation>
    </message>
    <message>
        <source>Side of the photo the size follows</source>
        <translation>ضلع الصورة الذي يتبعه الحجم</translation>
    </message>
</context>
<context>
    <name>zelto::AutoNumberWindowController</name>
    <message>
        <source>Auto Number</source>
        <translation>ترقيم تلقائي</translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used, %1</source>
        <translation>المتابعة &amp;بعد آخر رقم مستخدم، %1</translation>
    </message>
    <message>
        <source>&amp;Continue after the last number used</source>
        <translation>المتابعة &amp;بعد آخر رقم مستخدم</translation>
    </message>
    <message>
        <source>Number of &amp;digits:</source>
        <translation>&amp;عدد الخانات:</translation>
    </message>
    <message>
        <source>&amp;Starting number:</source>
        <translation>رقم ال&amp;بداية:</translation>
    </message>
    <message>
        <source>I&amp;ncrement:</source>
        <translation>م&amp;قدار الزيادة:</translation>
    </message>
    <message>
        <source>First photos:</source>
        <translation>الصور الأولى:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إ&amp;دراج</translation>
    </message>
</context>
<context>
    <name>zelto::ColorPanel</name>
    <message>
        <source>Shade</source>
        <translation>التدرّج</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>درجة اللون</translation>
    </message>
    <message>
        <source>Opacity of the colour</source>
        <translation>عتامة اللون</translation>
    </message>
    <message>
        <source>Colour in hexadecimal</source>
        <translation>اللون بالنظام الست عشري</translation>
    </message>
    <message>
        <source>Red, green and blue in hexadecimal, and opacity if you like: #rrggbb or #rrggbbaa</source>
        <translation>الأحمر والأخضر والأزرق بالنظام الست عشري، والعتامة إن أردت: ‎#rrggbb أو ‎#rrggbbaa</translation>
    </message>
    <message>
        <source>Opacity in per cent</source>
        <translation>العتامة بالمئة</translation>
    </message>
    <message>
        <source>Pick a colour from the photo</source>
        <translation>التقاط لون من الصورة</translation>
    </message>
    <message>
        <source>Pick a colour from the photo: click on it, Escape gives up</source>
        <translation>التقاط لون من الصورة: انقر عليها، وEscape للتراجع</translation>
    </message>
</context>
<context>
    <name>zelto::ColorWell</name>
    <message>
        <source>No colour</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>%1, %2% opaque</source>
        <translation>%1، معتم بنسبة %2%</translation>
    </message>
</context>
<context>
    <name>zelto::ContactView</name>
    <message>
        <source>Contact view</source>
        <translation>عرض الصور المصغّرة</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>جارٍ التحميل...</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
</context>
<context>
    <name>zelto::CopyrightEditor</name>
    <message>
        <source>Notice:</source>
        <translation>الإشعار:</translation>
    </message>
    <message>
        <source>© Jane Doe</source>
        <translation>© سارة أحمد</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Rights page:</source>
        <translation>صفحة الحقوق:</translation>
    </message>
    <message>
        <source>https://www.example.com/rights</source>
        <translation>https://www.example.com/rights</translation>
    </message>
    <message>
        <source>Terms of use:</source>
        <translation>شروط الاستخدام:</translation>
    </message>
    <message>
        <source>All rights reserved</source>
        <translation>جميع الحقوق محفوظة</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>Jane Doe</source>
        <translation>سارة أحمد</translation>
    </message>
    <message>
        <source>Job title:</source>
        <translation>المسمى الوظيفي:</translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation>مصوّرة</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>المدينة:</translation>
    </message>
    <message>
        <source>State or province:</source>
        <translation>الولاية أو المحافظة:</translation>
    </message>
    <message>
        <source>Postal code:</source>
        <translation>الرمز البريدي:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>البلد:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>الهاتف:</translation>
    </message>
    <message>
        <source>E-mail:</source>
        <translation>البريد الإلكتروني:</translation>
    </message>
    <message>
        <source>jane@example.com</source>
        <translation>sara@example.com</translation>
    </message>
    <message>
        <source>Website:</source>
        <translation>الموقع:</translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation>https://www.example.com</translation>
    </message>
    <message>
        <source>Copyrighted</source>
        <translation>محفوظة الحقوق</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>محمية</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروفة</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Write these data into the photos</source>
        <translation>كتابة هذه البيانات في الصور</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>الحقوق</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>المنشئ</translation>
    </message>
    <message>
        <source>The copyright data could not be kept for the next time</source>
        <translation>تعذّر الاحتفاظ ببيانات حقوق النشر للمرة القادمة</translation>
    </message>
    <message>
        <source>Not stated</source>
        <translation>غير مذكورة</translation>
    </message>
</context>
<context>
    <name>zelto::DateFormatWindowControlller</name>
    <message>
        <source>Date Format</source>
        <translation>صيغة التاريخ</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>ال&amp;صيغة:</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Letters of a format</source>
        <translation>أحرف الصيغة</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إ&amp;دراج</translation>
    </message>
</context>
<context>
    <name>zelto::EffectsEditor</name>
    <message>
        <source>Border and Shadow</source>
        <translation>الإطار والظل</translation>
    </message>
    <message>
        <source>Put a border and a shadow around the photos</source>
        <translation>وضع إطار وظل حول الصور</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>الظل</translation>
    </message>
    <message>
        <source>Same width on all sides</source>
        <translation>العرض نفسه في كل الجهات</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>لون الإطار</translation>
    </message>
    <message>
        <source>Watermarks may cover the border</source>
        <translation>يمكن للعلامات المائية تغطية الإطار</translation>
    </message>
    <message>
        <source>Unit of the border</source>
        <translation>وحدة الإطار</translation>
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
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Cast a shadow</source>
        <translation>إلقاء ظل</translation>
    </message>
    <message>
        <source>Unit of the shadow</source>
        <translation>وحدة الظل</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>التمويه</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>لون الظل</translation>
    </message>
    <message>
        <source>Lengths:</source>
        <translation>الأطوال:</translation>
    </message>
    <message>
        <source>Blur:</source>
        <translation>التمويه:</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>المسافة:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>اللون:</translation>
    </message>
    <message>
        <source>The preview leaves the shadow out while watermarks may cover the border; the written photos have it.</source>
        <translation>لا تُظهر المعاينة الظل ما دام يمكن للعلامات المائية تغطية الإطار؛ أما الصور المكتوبة ففيها الظل.</translation>
    </message>
    <message>
        <source>All sides are as thick as the top</source>
        <translation>جميع الجوانب بسماكة الجانب العلوي</translation>
    </message>
</context>
<context>
    <name>zelto::EmptyState</name>
    <message>
        <source>Tip</source>
        <translation>تلميح</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>التلميح &amp;التالي</translation>
    </message>
    <message>
        <source>Drop photos here</source>
        <translation>أفلت الصور هنا</translation>
    </message>
    <message>
        <source>Add the photos to be watermarked, compose your watermarks at the right, then press Start.</source>
        <translation>أضف الصور المراد وضع علامات مائية عليها، وألّف علاماتك في اللوحة الجانبية، ثم اضغط «بدء».</translation>
    </message>
    <message>
        <source>or begin with the watermarks</source>
        <translation>أو ابدأ بالعلامات المائية</translation>
    </message>
    <message>
        <source>A sample photo shows them until you add your own.</source>
        <translation>تعرضها صورة نموذجية إلى أن تضيف صورك.</translation>
    </message>
    <message>
        <source>This is a sample photo. Drop your own anywhere.</source>
        <translation>هذه صورة نموذجية. أفلت صورك في أي مكان.</translation>
    </message>
</context>
<context>
    <name>zelto::ExampleView</name>
    <message>
        <source>This photo cannot be read.</source>
        <translation>تتعذّر قراءة هذه الصورة.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 بكسل</translation>
    </message>
    <message>
        <source>%1: no picture can have this size</source>
        <translation>%1: لا يمكن أن تكون صورة بهذا الحجم</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Example of an output</source>
        <translation>مثال على ملف ناتج</translation>
    </message>
    <message>
        <source>No photo is selected.</source>
        <translation>لم تُحدَّد أي صورة.</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>⁨%1⁩، في ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>zelto::ExistingSettingsWindowController</name>
    <message>
        <source>&amp;Load</source>
        <translation>ت&amp;حميل</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>ح&amp;ذف...</translation>
    </message>
    <message>
        <source>Saved Settings</source>
        <translation>الإعدادات المحفوظة</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Saved settings</source>
        <translation>الإعدادات المحفوظة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>%1 (autoload)</source>
        <translation>%1 (تحميل تلقائي)</translation>
    </message>
    <message>
        <source>Loaded when Zelto starts</source>
        <translation>يُحمَّل عند بدء Zelto</translation>
    </message>
    <message>
        <source>Remove Autoload</source>
        <translation>إلغاء التحميل التلقائي</translation>
    </message>
    <message>
        <source>Set Autoload</source>
        <translation>تحميل تلقائي</translation>
    </message>
    <message>
        <source>There are no saved settings. File &gt; Save Setting saves the watermarks you see.</source>
        <translation>لا توجد إعدادات محفوظة. الأمر «ملف &gt; حفظ الإعداد» يحفظ العلامات المائية التي تراها.</translation>
    </message>
    <message>
        <source>Setting Delete Error</source>
        <translation>خطأ في حذف الإعداد</translation>
    </message>
</context>
<context>
    <name>zelto::FilterWindow</name>
    <message>
        <source>Filter</source>
        <translation>المرشّح</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>المرشّحات</translation>
    </message>
</context>
<context>
    <name>zelto::FoldGroup</name>
    <message>
        <source>Folded</source>
        <translation>مطوي</translation>
    </message>
    <message>
        <source>Unfolded</source>
        <translation>مفتوح</translation>
    </message>
</context>
<context>
    <name>zelto::FolderField</name>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>ا&amp;ستعراض...</translation>
    </message>
</context>
<context>
    <name>zelto::FolderImport</name>
    <message>
        <source>Add Folder</source>
        <translation>إضافة مجلد</translation>
    </message>
    <message>
        <source>Looking for photos...</source>
        <translation>جارٍ البحث عن صور...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) found</source>
        <translation>
            <numerusform>لم يُعثر على صور</numerusform>
            <numerusform>عُثر على صورة واحدة</numerusform>
            <numerusform>عُثر على صورتين</numerusform>
            <numerusform>عُثر على %Ln صور</numerusform>
            <numerusform>عُثر على %Ln صورة</numerusform>
            <numerusform>عُثر على %Ln صورة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::FolderWindowController</name>
    <message>
        <source>Folder of Photos</source>
        <translation>مجلد الصور</translation>
    </message>
    <message>
        <source>Include &amp;sub-folders</source>
        <translation>تضمين المجلدات ال&amp;فرعية</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>إضافة مجلد</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>ال&amp;مجلد:</translation>
    </message>
    <message>
        <source>A folder&apos;s GIF photos are passed over; add them one by one.</source>
        <translation>تُتجاوز صور GIF في المجلد؛ أضفها واحدة واحدة.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>الصيغ:</translation>
    </message>
    <message>
        <source>More formats:</source>
        <translation>صيغ أخرى:</translation>
    </message>
    <message>
        <source>&amp;Add Photos</source>
        <translation>&amp;إضافة صور</translation>
    </message>
    <message>
        <source>The previews in cameras&apos; raw files.</source>
        <translation>المعاينات المضمّنة في ملفات الكاميرا الخام.</translation>
    </message>
</context>
<context>
    <name>zelto::FontFamilyList</name>
    <message>
        <source>Search fonts</source>
        <translation>البحث في الخطوط</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>“%1” is not installed here; a standard font takes its place.</source>
        <translation>«%1» غير مثبّت هنا؛ يحل محله خط قياسي.</translation>
    </message>
</context>
<context>
    <name>zelto::FullScreenView</name>
    <message>
        <source>Full Screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>لحظة من فضلك...</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>الخروج من ملء الشاشة</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>جارٍ تحميل %1...</translation>
    </message>
</context>
<context>
    <name>zelto::GuideWindow</name>
    <message>
        <source>Zelto Guide</source>
        <translation>دليل Zelto</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>صفحة الدليل</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;رجوع</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;تقدّم</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>ال&amp;محتويات</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>الدليل</translation>
    </message>
    <message>
        <source>The guide is not installed: there is no folder “%1”.</source>
        <translation>الدليل غير مثبّت: لا يوجد مجلد «%1».</translation>
    </message>
</context>
<context>
    <name>zelto::ImageListController</name>
    <message numerus="yes">
        <source>Add %Ln Photo(s)</source>
        <translation>
            <numerusform>عدم إضافة صور</numerusform>
            <numerusform>إضافة صورة</numerusform>
            <numerusform>إضافة صورتين</numerusform>
            <numerusform>إضافة %Ln صور</numerusform>
            <numerusform>إضافة %Ln صورة</numerusform>
            <numerusform>إضافة %Ln صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) are in the list already</source>
        <translation>
            <numerusform>لا توجد صور مكررة في القائمة</numerusform>
            <numerusform>توجد صورة واحدة في القائمة مسبقًا</numerusform>
            <numerusform>توجد صورتان في القائمة مسبقًا</numerusform>
            <numerusform>توجد %Ln صور في القائمة مسبقًا</numerusform>
            <numerusform>توجد %Ln صورة في القائمة مسبقًا</numerusform>
            <numerusform>توجد %Ln صورة في القائمة مسبقًا</numerusform>
        </translation>
    </message>
    <message>
        <source>Check All Photos</source>
        <translation>تحديد كل الصور</translation>
    </message>
    <message>
        <source>Uncheck All Photos</source>
        <translation>إلغاء تحديد كل الصور</translation>
    </message>
    <message>
        <source>Toggle Check Marks</source>
        <translation>عكس علامات التحديد</translation>
    </message>
    <message>
        <source>Check Photos</source>
        <translation>تحديد الصور</translation>
    </message>
    <message>
        <source>Uncheck Photos</source>
        <translation>إلغاء تحديد الصور</translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Photo(s)</source>
        <translation>
            <numerusform>عدم إزالة صور</numerusform>
            <numerusform>إزالة صورة</numerusform>
            <numerusform>إزالة صورتين</numerusform>
            <numerusform>إزالة %Ln صور</numerusform>
            <numerusform>إزالة %Ln صورة</numerusform>
            <numerusform>إزالة %Ln صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove Photo</source>
        <translation>إزالة الصورة</translation>
    </message>
    <message>
        <source>Remove All Photos</source>
        <translation>إزالة كل الصور</translation>
    </message>
    <message>
        <source>Watermark Warning</source>
        <translation>تحذير بشأن العلامة المائية</translation>
    </message>
</context>
<context>
    <name>zelto::ImportExportWindowController</name>
    <message>
        <source>&amp;Import</source>
        <translation>ا&amp;ستيراد</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;تصدير</translation>
    </message>
    <message>
        <source>There are no settings to copy.</source>
        <translation>لا توجد إعدادات لنسخها.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln setting(s) will be copied.</source>
        <translation>
            <numerusform>لن يُنسخ أي إعداد.</numerusform>
            <numerusform>سيُنسخ إعداد واحد.</numerusform>
            <numerusform>سيُنسخ إعدادان.</numerusform>
            <numerusform>ستُنسخ %Ln إعدادات.</numerusform>
            <numerusform>سيُنسخ %Ln إعدادًا.</numerusform>
            <numerusform>سيُنسخ %Ln إعداد.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>لا يوجد مجلد كهذا.</translation>
    </message>
</context>
<context>
    <name>zelto::Inspector</name>
    <message>
        <source>Revert: take back everything that was changed since this was selected</source>
        <translation>تراجع: إلغاء كل ما تغيّر منذ التحديد</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Select a watermark in the list above or on the photo, and what it looks like and where it stands can be changed here.</source>
        <translation>حدد علامة مائية في القائمة أعلاه أو على الصورة، ليمكنك تغيير مظهرها وموضعها من هنا.</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>لا شيء محدد</translation>
    </message>
</context>
<context>
    <name>zelto::LengthBox</name>
    <message>
        <source>On the selected photo</source>
        <translation>على الصورة المحددة</translation>
    </message>
    <message>
        <source>= %L1 px</source>
        <translation>= %L1 بكسل</translation>
    </message>
</context>
<context>
    <name>zelto::LengthUnit</name>
    <message>
        <source>in pixels</source>
        <translation>بالبكسل</translation>
    </message>
    <message>
        <source>in % of the shorter side</source>
        <translation>‏٪ من الضلع الأقصر</translation>
    </message>
</context>
<context>
    <name>zelto::LogoEditor</name>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
</context>
<context>
    <name>zelto::LogoFileGroup</name>
    <message>
        <source>No image chosen</source>
        <translation>لم تُختر صورة</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختيار…</translation>
    </message>
</context>
<context>
    <name>zelto::LogoGroup</name>
    <message>
        <source>Choose Image</source>
        <translation>اختيار صورة</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>This image cannot be used</source>
        <translation>لا يمكن استخدام هذه الصورة</translation>
    </message>
    <message>
        <source>Make transparent:</source>
        <translation>جعل اللون شفافًا:</translation>
    </message>
    <message>
        <source>Transparent Colour</source>
        <translation>اللون الشفاف</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>تدرّج الرمادي</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>تغيير الحجم</translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation>نسبي</translation>
    </message>
    <message>
        <source>Size in per cent</source>
        <translation>الحجم بالمئة</translation>
    </message>
    <message>
        <source>Absolute</source>
        <translation>مطلق</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>W </source>
        <translation>العرض </translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>H </source>
        <translation>الارتفاع </translation>
    </message>
    <message>
        <source>Keep aspect ratio</source>
        <translation>الحفاظ على النسبة</translation>
    </message>
</context>
<context>
    <name>zelto::LogoSample</name>
    <message>
        <source>Logo</source>
        <translation>الشعار</translation>
    </message>
    <message>
        <source>Click the colour that is to become transparent</source>
        <translation>انقر على اللون المراد جعله شفافًا</translation>
    </message>
</context>
<context>
    <name>zelto::MacroController</name>
    <message>
        <source>Insert Macro</source>
        <translation>إدراج ماكرو</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>الماكرو</translation>
    </message>
    <message>
        <source>On this photo</source>
        <translation>في هذه الصورة</translation>
    </message>
    <message>
        <source>Search macros and values</source>
        <translation>البحث في وحدات الماكرو والقيم</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>البحث في وحدات الماكرو</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>وحدات الماكرو</translation>
    </message>
    <message>
        <source>Special Character…</source>
        <translation>حرف خاص…</translation>
    </message>
</context>
<context>
    <name>zelto::MainWindow</name>
    <message>
        <source>There is no saved setting and no setting file “%1”.</source>
        <translation>لا يوجد إعداد محفوظ ولا ملف إعداد باسم «%1».</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s)</source>
        <translation>
            <numerusform>لا صور</numerusform>
            <numerusform>صورة واحدة</numerusform>
            <numerusform>صورتان</numerusform>
            <numerusform>%Ln صور</numerusform>
            <numerusform>%Ln صورة</numerusform>
            <numerusform>%Ln صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة:</translation>
    </message>
    <message>
        <source>About Zelto</source>
        <translation>حول Zelto</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Zelto %1&lt;/h3&gt;&lt;p&gt;Watermarks for batches of photos.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Zelto %1&lt;/h3&gt;&lt;p&gt;علامات مائية لدفعات من الصور.&lt;/p&gt;&lt;p&gt;برنامج حر بموجب رخصة غنو العمومية العامة، الإصدار 3 أو أحدث.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>شريط الأدوات</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Start Watermarking</source>
        <translation>بدء وضع العلامات المائية</translation>
    </message>
    <message>
        <source>%1[*] – Zelto</source>
        <translation>%1[*] – Zelto</translation>
    </message>
    <message>
        <source>No photos</source>
        <translation>لا صور</translation>
    </message>
    <message numerus="yes">
        <source>%Ln checked</source>
        <translation>
            <numerusform>لا شيء محدد</numerusform>
            <numerusform>واحدة محددة</numerusform>
            <numerusform>اثنتان محددتان</numerusform>
            <numerusform>%Ln محددة</numerusform>
            <numerusform>%Ln محددة</numerusform>
            <numerusform>%Ln محددة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 ٪</translation>
    </message>
    <message>
        <source>What was opened from outside comes in as soon as the window is free.</source>
        <translation>ما فُتح من الخارج يدخل حالما تفرغ النافذة.</translation>
    </message>
    <message>
        <source>There is nothing to undo</source>
        <translation>لا يوجد ما يُتراجع عنه</translation>
    </message>
    <message>
        <source>There is nothing to redo</source>
        <translation>لا يوجد ما يُعاد</translation>
    </message>
</context>
<context>
    <name>zelto::NumberField</name>
    <message>
        <source>A number from %1 to %2</source>
        <translation>عدد من %1 إلى %2</translation>
    </message>
</context>
<context>
    <name>zelto::OutputOptionsController</name>
    <message>
        <source>Output Options</source>
        <translation>خيارات الإخراج</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;بدء</translation>
    </message>
    <message>
        <source>Set &amp;as Default</source>
        <translation>تعيين ا&amp;فتراضيًا</translation>
    </message>
    <message>
        <source>Create the Folder?</source>
        <translation>هل تريد إنشاء المجلد؟</translation>
    </message>
    <message>
        <source>There is no folder “%1” yet.</source>
        <translation>لا يوجد مجلد باسم «⁨%1⁩» بعد.</translation>
    </message>
    <message>
        <source>&amp;Create Folder</source>
        <translation>&amp;إنشاء المجلد</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Folder Not Created</source>
        <translation>لم يُنشأ المجلد</translation>
    </message>
    <message>
        <source>“%1” cannot be created.</source>
        <translation>يتعذّر إنشاء «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>zelto::OutputPanel</name>
    <message>
        <source>Output</source>
        <translation>الإخراج</translation>
    </message>
    <message>
        <source>Output Folder</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>&amp;Maintain the directory structure</source>
        <translation>ال&amp;حفاظ على بنية المجلدات</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>جو&amp;دة JPEG:</translation>
    </message>
    <message>
        <source>&amp;Combine to a single PDF</source>
        <translation>الجمع في ملف PDF &amp;واحد</translation>
    </message>
    <message>
        <source>Keep &amp;untouched areas as they are (JPEG to JPEG)</source>
        <translation>إبقاء ال&amp;مناطق غير المتأثرة كما هي (من JPEG إلى JPEG)</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>الم&amp;جلد:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>ال&amp;صيغة:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Only the blocks that a watermark touches are encoded again, with the quality the photo has already. All else stays as it is, so that a copy of a copy is as good as the first.&lt;/p&gt;&lt;p&gt;This is done for JPEG photos that are neither resized nor filtered nor framed. Others are encoded as usual, and their rows say why.&lt;/p&gt;&lt;p&gt;Many cameras store colors at half the size. There, colored edges of marks are softer, and on a grey photo marks are grey.&lt;/p&gt;</source>
        <translation>&lt;p&gt;يُعاد ترميز الكتل التي تلمسها علامة مائية فقط، بالجودة التي عليها الصورة أصلاً. ويبقى كل ما عداها كما هو، فتكون نسخة النسخة بجودة الأولى.&lt;/p&gt;&lt;p&gt;يجري ذلك لصور JPEG التي لا يُغيَّر حجمها ولا يُطبَّق عليها مرشّح ولا إطار. أما غيرها فيُرمَّز كالمعتاد، ويذكر صفها السبب.&lt;/p&gt;&lt;p&gt;تخزّن كاميرات كثيرة الألوان بنصف الحجم، فتكون حواف العلامات الملونة فيها أنعم، وتكون العلامات على الصورة الرمادية رمادية.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Meta&amp;data:</source>
        <translation>البيانات الوصف&amp;ية:</translation>
    </message>
    <message>
        <source>Same as source image</source>
        <translation>كالصورة المصدر</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>0 is the smallest file, 100 the best picture: with WebP, JPEG XL and AVIF, without any loss</source>
        <translation>0 لأصغر ملف، و100 لأفضل صورة: مع WebP وJPEG XL وAVIF بلا أي فقد</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>البيانات الوصفية</translation>
    </message>
    <message>
        <source>Exclude Geolocation removes every position and keeps the names of places.</source>
        <translation>«استبعاد الموقع الجغرافي» يزيل كل المواقع ويُبقي أسماء الأماكن.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>جودة JPEG</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>الجو&amp;دة:</translation>
    </message>
    <message>
        <source>Files of this format have no metadata.</source>
        <translation>لا بيانات وصفية لملفات هذه الصيغة.</translation>
    </message>
    <message>
        <source>You have set no copyright data (Add &gt; Copyright).</source>
        <translation>لم تُضبط بيانات حقوق النشر (إضافة &gt; حقوق النشر).</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>All photos become the pages of one file</source>
        <translation>تصبح جميع الصور صفحات ملف واحد</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) will have none: PNG, BMP and GIF files carry no metadata.</source>
        <translation>
            <numerusform>لن تبقى أي صورة (%Ln) بلا بيانات.</numerusform>
            <numerusform>ستبقى صورة واحدة بلا بيانات: ملفات PNG وBMP وGIF لا تحملها.</numerusform>
            <numerusform>ستبقى صورتان بلا بيانات: ملفات PNG وBMP وGIF لا تحملها.</numerusform>
            <numerusform>ستبقى %Ln صور بلا بيانات: ملفات PNG وBMP وGIF لا تحملها.</numerusform>
            <numerusform>ستبقى %Ln صورة بلا بيانات: ملفات PNG وBMP وGIF لا تحملها.</numerusform>
            <numerusform>ستبقى %Ln صورة بلا بيانات: ملفات PNG وBMP وGIF لا تحملها.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::PhotoDelegate</name>
    <message>
        <source>preview of a raw file</source>
        <translation>معاينة ملف خام</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoFilterBox</name>
    <message>
        <source>All Photos</source>
        <translation>كل الصور</translation>
    </message>
    <message>
        <source>Failed or with Warnings</source>
        <translation>الفاشلة أو ذات التحذيرات</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>الفاشلة</translation>
    </message>
    <message>
        <source>With Warnings</source>
        <translation>ذات التحذيرات</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>The photos that the list shows</source>
        <translation>الصور التي تعرضها القائمة</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoListView</name>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>No photo has “%1” in its name</source>
        <translation>لا صورة يحتوي اسمها على «%1»</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPanel</name>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Sort the photos: the run and its numbers follow this order</source>
        <translation>ترتيب الصور: يتبع التشغيل وأرقامه هذا الترتيب</translation>
    </message>
    <message>
        <source>Sort Photos</source>
        <translation>ترتيب الصور</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>البحث بالاسم</translation>
    </message>
    <message>
        <source>Find photos by name</source>
        <translation>البحث عن الصور بالاسم</translation>
    </message>
    <message>
        <source>Shows only photos with this in their names (Ctrl+F)</source>
        <translation>يعرض الصور التي يحتوي اسمها على هذا النص فقط (Ctrl+F)</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoPreview</name>
    <message>
        <source>This photo cannot be shown</source>
        <translation>تتعذّر عرض هذه الصورة</translation>
    </message>
    <message>
        <source>Working...</source>
        <translation>جارٍ العمل...</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>جارٍ تحميل %1...</translation>
    </message>
    <message>
        <source>Place Watermark</source>
        <translation>وضع العلامة المائية</translation>
    </message>
    <message>
        <source>Resize Watermark</source>
        <translation>تغيير حجم العلامة المائية</translation>
    </message>
    <message>
        <source>Turn Watermark</source>
        <translation>تدوير العلامة المائية</translation>
    </message>
</context>
<context>
    <name>zelto::PhotoStrip</name>
    <message>
        <source>Filter</source>
        <translation>المرشّح</translation>
    </message>
    <message>
        <source>Add the filter</source>
        <translation>إضافة المرشّح</translation>
    </message>
    <message>
        <source>Edit the filter</source>
        <translation>تحرير المرشّح</translation>
    </message>
    <message>
        <source>Remove the filter</source>
        <translation>إزالة المرشّح</translation>
    </message>
    <message>
        <source>Switch the filter on</source>
        <translation>تشغيل المرشّح</translation>
    </message>
    <message>
        <source>Switch the filter off</source>
        <translation>إيقاف المرشّح</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <source>Add border and shadow</source>
        <translation>إضافة الإطار والظل</translation>
    </message>
    <message>
        <source>Edit border and shadow</source>
        <translation>تحرير الإطار والظل</translation>
    </message>
    <message>
        <source>Remove border and shadow</source>
        <translation>إزالة الإطار والظل</translation>
    </message>
    <message>
        <source>Switch border and shadow on</source>
        <translation>تشغيل الإطار والظل</translation>
    </message>
    <message>
        <source>Switch border and shadow off</source>
        <translation>إيقاف الإطار والظل</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Add the copyright data</source>
        <translation>إضافة بيانات حقوق النشر</translation>
    </message>
    <message>
        <source>Edit the copyright data</source>
        <translation>تحرير بيانات حقوق النشر</translation>
    </message>
    <message>
        <source>Remove the copyright data</source>
        <translation>إزالة بيانات حقوق النشر</translation>
    </message>
    <message>
        <source>Switch the copyright data on</source>
        <translation>تشغيل بيانات حقوق النشر</translation>
    </message>
    <message>
        <source>Switch the copyright data off</source>
        <translation>إيقاف بيانات حقوق النشر</translation>
    </message>
    <message>
        <source>The photo as a whole</source>
        <translation>الصورة ككل</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>zelto::PlaceGuides</name>
    <message>
        <source>%L1 px</source>
        <translation>%L1 بكسل</translation>
    </message>
    <message>
        <source>%1 = %2 %</source>
        <translation>%1 = %2 ٪</translation>
    </message>
</context>
<context>
    <name>zelto::PositionGrid</name>
    <message>
        <source>Top left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>أعلى الوسط</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>وسط اليسار</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>وسط اليمين</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>أسفل الوسط</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>أسفل اليمين</translation>
    </message>
</context>
<context>
    <name>zelto::PositionGroup</name>
    <message>
        <source>Preset</source>
        <translation>موضع جاهز</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>From left:</source>
        <translation>من اليسار:</translation>
    </message>
    <message>
        <source>From top:</source>
        <translation>من الأعلى:</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>الهامش</translation>
    </message>
    <message>
        <source>Unit of the padding</source>
        <translation>وحدة الهامش</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>أعلى:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>يسار:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>أسفل:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>يمين:</translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation>تكرار أفقي</translation>
    </message>
    <message>
        <source>Horizontal spacing</source>
        <translation>المسافة الأفقية</translation>
    </message>
    <message>
        <source>Repeat down</source>
        <translation>تكرار رأسي</translation>
    </message>
    <message>
        <source>Vertical spacing</source>
        <translation>المسافة الرأسية</translation>
    </message>
    <message>
        <source>Gap </source>
        <translation>المسافة </translation>
    </message>
    <message>
        <source>Unit of the gaps</source>
        <translation>وحدة المسافات</translation>
    </message>
    <message>
        <source>What is repeated has a row or a column, not a place</source>
        <translation>ما يتكرر له صف أو عمود لا موضع واحد</translation>
    </message>
    <message>
        <source>At this position this padding moves nothing</source>
        <translation>لا يُحرّك هذا الهامش شيئًا في هذا الموضع</translation>
    </message>
</context>
<context>
    <name>zelto::PreviewView</name>
    <message>
        <source>Preview</source>
        <translation>المعاينة</translation>
    </message>
</context>
<context>
    <name>zelto::ProcessingBar</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v من %m</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 صورة/ث، بقي %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message numerus="yes">
        <source>The run has begun: %Ln photo(s)</source>
        <translation>
            <numerusform>بدأ التشغيل: لا صور</numerusform>
            <numerusform>بدأ التشغيل: صورة واحدة</numerusform>
            <numerusform>بدأ التشغيل: صورتان</numerusform>
            <numerusform>بدأ التشغيل: %Ln صور</numerusform>
            <numerusform>بدأ التشغيل: %Ln صورة</numerusform>
            <numerusform>بدأ التشغيل: %Ln صورة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::QrCodeEditor</name>
    <message>
        <source>QR Code</source>
        <translation>رمز QR</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Content of the code</source>
        <translation>محتوى الرمز</translation>
    </message>
    <message>
        <source>https://www.example.com</source>
        <translation>https://www.example.com</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>وحدات الماكرو</translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation>‏٪ من عرض الصورة</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>الحجم:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>الخلفية:</translation>
    </message>
    <message>
        <source>Background of the code</source>
        <translation>خلفية الرمز</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>zelto::QrJudgement</name>
    <message>
        <source>Type what the code is to say, such as a web address.</source>
        <translation>اكتب ما ينبغي أن يقوله الرمز، كعنوان موقع مثلاً.</translation>
    </message>
    <message>
        <source>Too long for a QR code: the text has %1 bytes, %2 fit.</source>
        <translation>أطول مما يتسع له رمز QR: في النص %1 بايت، ويتسع الرمز لـ %2.</translation>
    </message>
    <message>
        <source>Larger than the photo: a part of the code would be cut off.</source>
        <translation>أكبر من الصورة: سيُقتطع جزء من الرمز.</translation>
    </message>
    <message>
        <source>The background is too dark: choose a brighter one.</source>
        <translation>الخلفية داكنة جدًا: اختر أفتح منها.</translation>
    </message>
    <message>
        <source>Without a background it can be read on bright parts of photos only.</source>
        <translation>لا يُقرأ بلا خلفية إلا على الأجزاء الفاتحة من الصور.</translation>
    </message>
    <message>
        <source>%1 × %1 squares of %2 pixels each.</source>
        <translation>%1 × %1 مربعات، كل منها %2 بكسل.</translation>
    </message>
    <message>
        <source>Too small to be read: this text needs at least %L1 pixels.</source>
        <translation>أصغر من أن يُقرأ: يحتاج هذا النص إلى %L1 بكسل على الأقل.</translation>
    </message>
    <message>
        <source>Too small to be read: this text needs at least %L1 pixels (%L2% of this photo&apos;s width).</source>
        <translation>أصغر من أن يُقرأ: يحتاج هذا النص إلى %L1 بكسل على الأقل (%L2% من عرض هذه الصورة).</translation>
    </message>
</context>
<context>
    <name>zelto::RenamePanel</name>
    <message>
        <source>Re&amp;name photos</source>
        <translation>إعادة &amp;تسمية الصور</translation>
    </message>
    <message>
        <source>Name patte&amp;rn:</source>
        <translation>&amp;نمط الاسم:</translation>
    </message>
    <message>
        <source>Name pattern</source>
        <translation>نمط الاسم</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إ&amp;دراج</translation>
    </message>
    <message>
        <source>Insert a macro</source>
        <translation>إدراج ماكرو</translation>
    </message>
</context>
<context>
    <name>zelto::ResizeField</name>
    <message>
        <source> %</source>
        <translation> ٪</translation>
    </message>
    <message>
        <source> px</source>
        <translation> بكسل</translation>
    </message>
</context>
<context>
    <name>zelto::ResizePanel</name>
    <message>
        <source>Resi&amp;ze photos</source>
        <translation>ت&amp;غيير حجم الصور</translation>
    </message>
    <message>
        <source>Width, per cent</source>
        <translation>العرض بالمئة</translation>
    </message>
    <message>
        <source>Height, per cent</source>
        <translation>الارتفاع بالمئة</translation>
    </message>
    <message>
        <source>Width, pixels</source>
        <translation>العرض بالبكسل</translation>
    </message>
    <message>
        <source>Height, pixels</source>
        <translation>الارتفاع بالبكسل</translation>
    </message>
    <message>
        <source>Longer side, pixels</source>
        <translation>الضلع الأطول بالبكسل</translation>
    </message>
    <message>
        <source>&amp;Keep the proportions</source>
        <translation>الحفا&amp;ظ على التناسب</translation>
    </message>
    <message>
        <source>Do not &amp;enlarge small photos</source>
        <translation>عدم تكبير ال&amp;صور الصغيرة</translation>
    </message>
    <message>
        <source>&amp;Percentage</source>
        <translation>ن&amp;سبة مئوية</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>ب&amp;كسل</translation>
    </message>
    <message>
        <source>&amp;Longer side</source>
        <translation>الضلع الأ&amp;طول</translation>
    </message>
</context>
<context>
    <name>zelto::ResultBar</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>Retr&amp;y Failed</source>
        <translation>إعادة محاولة ال&amp;فاشلة</translation>
    </message>
    <message>
        <source>Show only the photos that failed or were written with warnings</source>
        <translation>عرض الصور الفاشلة أو المكتوبة مع تحذيرات فقط</translation>
    </message>
    <message>
        <source>Run once more for the photos that failed, with the same options</source>
        <translation>التشغيل مرة أخرى للصور الفاشلة بالخيارات نفسها</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>إغلاق (Escape)</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>إغلاق الملخص</translation>
    </message>
    <message>
        <source>Result of the run: %1</source>
        <translation>نتيجة التشغيل: %1</translation>
    </message>
</context>
<context>
    <name>zelto::RotationControl</name>
    <message>
        <source>Straight</source>
        <translation>مستقيم</translation>
    </message>
    <message>
        <source>Slightly rising</source>
        <translation>صاعد قليلاً</translation>
    </message>
    <message>
        <source>Rising diagonally</source>
        <translation>صاعد بميل</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>Slightly falling</source>
        <translation>نازل قليلاً</translation>
    </message>
    <message>
        <source>Falling diagonally</source>
        <translation>نازل بميل</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>إلى الأسفل</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>مقلوب</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>Rotation in degrees</source>
        <translation>الدوران بالدرجات</translation>
    </message>
    <message>
        <source>Usual rotations</source>
        <translation>زوايا شائعة</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
</context>
<context>
    <name>zelto::RunController</name>
    <message>
        <source>Looking at the names of the outputs...</source>
        <translation>جارٍ فحص أسماء الملفات الناتجة...</translation>
    </message>
    <message>
        <source>Pausing</source>
        <translation>جارٍ الإيقاف المؤقت</translation>
    </message>
    <message>
        <source>Photos Are Being Watermarked</source>
        <translation>يجري وضع العلامات المائية على الصور</translation>
    </message>
    <message>
        <source>%1 of %2 are done. The photo in hand will be finished.</source>
        <translation>اكتملت %1 من %2. ستُستكمل الصورة الجارية.</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>إيقاف وخروج</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>متابعة التشغيل</translation>
    </message>
    <message>
        <source>Encoded as usual: %1</source>
        <translation>رُمّزت كالمعتاد: %1</translation>
    </message>
    <message>
        <source>%1 photos/s, %2 left</source>
        <translation>%1 صورة/ث، بقي %2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>أُوقف</translation>
    </message>
    <message numerus="yes">
        <source>%Ln written</source>
        <translation>
            <numerusform>لم تُكتب أي صورة</numerusform>
            <numerusform>كُتبت واحدة</numerusform>
            <numerusform>كُتبت اثنتان</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
            <numerusform>كُتبت %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>لم تفشل أي صورة</numerusform>
            <numerusform>فشلت واحدة</numerusform>
            <numerusform>فشلت اثنتان</numerusform>
            <numerusform>فشلت %Ln</numerusform>
            <numerusform>فشلت %Ln</numerusform>
            <numerusform>فشلت %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln warned</source>
        <translation>
            <numerusform>بلا تحذيرات</numerusform>
            <numerusform>واحدة بتحذير</numerusform>
            <numerusform>اثنتان بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
            <numerusform>%Ln بتحذير</numerusform>
        </translation>
    </message>
    <message>
        <source>Open P&amp;DF</source>
        <translation>فتح P&amp;DF</translation>
    </message>
    <message>
        <source>Open Fol&amp;der</source>
        <translation>فتح الم&amp;جلد</translation>
    </message>
    <message>
        <source>Going on</source>
        <translation>استُؤنف التشغيل</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>أُلغي</translation>
    </message>
</context>
<context>
    <name>zelto::SaveSettingsDialog</name>
    <message>
        <source>Save Setting</source>
        <translation>حفظ الإعداد</translation>
    </message>
    <message>
        <source>&amp;Name of the setting:</source>
        <translation>ا&amp;سم الإعداد:</translation>
    </message>
    <message>
        <source>Name of the setting</source>
        <translation>اسم الإعداد</translation>
    </message>
    <message>
        <source>Saved settings hold the watermarks, the filter and the border.</source>
        <translation>تحتوي الإعدادات المحفوظة على العلامات المائية والمرشّح والإطار.</translation>
    </message>
    <message>
        <source>There is a setting of this name.</source>
        <translation>يوجد إعداد بهذا الاسم.</translation>
    </message>
</context>
<context>
    <name>zelto::SavedStacksPopup</name>
    <message>
        <source>Saved stacks</source>
        <translation>المجموعات المحفوظة</translation>
    </message>
    <message>
        <source>%1 (at start)</source>
        <translation>%1 (عند البدء)</translation>
    </message>
    <message>
        <source>%1
Loaded when Zelto starts</source>
        <translation>%1
تُحمَّل عند بدء Zelto</translation>
    </message>
    <message>
        <source>There are no saved stacks yet.
Save keeps the one you see.</source>
        <translation>لا توجد مجموعات محفوظة بعد.
الحفظ يُبقي المجموعة التي تراها.</translation>
    </message>
</context>
<context>
    <name>zelto::ShapeEditor</name>
    <message>
        <source>Rectangle</source>
        <translation>مستطيل</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>قطع ناقص</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>مضلّع</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>خط</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>Top to bottom</source>
        <translation>من الأعلى إلى الأسفل</translation>
    </message>
    <message>
        <source>Lower right to upper left</source>
        <translation>من أسفل اليمين إلى أعلى اليسار</translation>
    </message>
    <message>
        <source>Upper right to lower left</source>
        <translation>من أعلى اليمين إلى أسفل اليسار</translation>
    </message>
    <message>
        <source>From the centre</source>
        <translation>من الوسط</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>الشكل</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>% of photo width</source>
        <translation>‏٪ من عرض الصورة</translation>
    </message>
    <message>
        <source>% of photo height</source>
        <translation>‏٪ من ارتفاع الصورة</translation>
    </message>
    <message>
        <source>Sides:</source>
        <translation>الأضلاع:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>العرض:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>الارتفاع:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>الطول:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>السُّمك:</translation>
    </message>
    <message>
        <source>One colour</source>
        <translation>لون واحد</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>تدرّج لوني</translation>
    </message>
    <message>
        <source>First colour of the gradient</source>
        <translation>اللون الأول للتدرّج</translation>
    </message>
    <message>
        <source>Second colour of the gradient</source>
        <translation>اللون الثاني للتدرّج</translation>
    </message>
    <message>
        <source>Direction of the gradient</source>
        <translation>اتجاه التدرّج</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>الشفافية:</translation>
    </message>
    <message>
        <source>A circle looks the same however it is turned</source>
        <translation>تبدو الدائرة كما هي مهما دُوّرت</translation>
    </message>
    <message>
        <source>Only polygons have a number of sides</source>
        <translation>للمضلعات وحدها عدد أضلاع</translation>
    </message>
</context>
<context>
    <name>zelto::SizeField</name>
    <message>
        <source>Pixels</source>
        <translation>بكسل</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
</context>
<context>
    <name>zelto::SpecialCharacterWindowController</name>
    <message>
        <source>Characters</source>
        <translation>الأحرف</translation>
    </message>
    <message>
        <source>Special Characters</source>
        <translation>أحرف خاصة</translation>
    </message>
    <message>
        <source>Search by name or code: “arrow”, “U+2192”</source>
        <translation>البحث بالاسم (بالإنجليزية) أو الرمز: «arrow»، «U+2192»</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>إ&amp;دراج</translation>
    </message>
    <message>
        <source>No character has such a name</source>
        <translation>لا حرف بهذا الاسم</translation>
    </message>
    <message>
        <source>The first %L1 of %L2 found</source>
        <translation>أول %L1 من أصل %L2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>لم يُعثر على شيء</numerusform>
            <numerusform>عُثر على واحد</numerusform>
            <numerusform>عُثر على اثنين</numerusform>
            <numerusform>عُثر على %Ln</numerusform>
            <numerusform>عُثر على %Ln</numerusform>
            <numerusform>عُثر على %Ln</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>zelto::StackHead</name>
    <message>
        <source>More for this stack</source>
        <translation>المزيد لهذه المجموعة</translation>
    </message>
    <message>
        <source>Drawn from top to bottom</source>
        <translation>تُرسم من الأعلى إلى الأسفل</translation>
    </message>
    <message>
        <source>The last one lies on top of the others</source>
        <translation>تقع الأخيرة فوق غيرها</translation>
    </message>
    <message>
        <source>Unnamed stack</source>
        <translation>مجموعة بلا اسم</translation>
    </message>
    <message>
        <source>This stack has not been saved under a name</source>
        <translation>لم تُحفظ هذه المجموعة باسم بعد</translation>
    </message>
    <message>
        <source>“%1” has been changed since it was saved</source>
        <translation>تغيّر «%1» منذ حفظه</translation>
    </message>
    <message>
        <source>“%1” is loaded when Zelto starts</source>
        <translation>يُحمَّل «%1» عند بدء Zelto</translation>
    </message>
    <message>
        <source>“%1” is loaded</source>
        <translation>«%1» محمَّل</translation>
    </message>
    <message>
        <source>%1
Click for the saved stacks (%2)</source>
        <translation>%1
انقر لعرض المجموعات المحفوظة (%2)</translation>
    </message>
</context>
<context>
    <name>zelto::StackKeeper</name>
    <message>
        <source>Setting Save Error</source>
        <translation>خطأ في حفظ الإعداد</translation>
    </message>
    <message>
        <source>“%1” Has Been Changed</source>
        <translation>تغيّر «%1»</translation>
    </message>
    <message>
        <source>Save the changes in the setting, or keep these watermarks for the next start without changing the setting?</source>
        <translation>هل تريد حفظ التغييرات في الإعداد، أم الاحتفاظ بهذه العلامات المائية للتشغيل القادم دون تغيير الإعداد؟</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Keep for Next Time</source>
        <translation>الاحتفاظ للمرة القادمة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>There is no folder for settings.</source>
        <translation>لا يوجد مجلد للإعدادات.</translation>
    </message>
    <message>
        <source>The Watermarks Cannot Be Kept</source>
        <translation>يتعذّر الاحتفاظ بالعلامات المائية</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>إغلاق على أي حال</translation>
    </message>
    <message>
        <source>The watermarks of the last time cannot be brought back: %1</source>
        <translation>تتعذّر استعادة العلامات المائية للمرة السابقة: %1</translation>
    </message>
    <message>
        <source>“%1” is loaded again, as when Zelto was closed.</source>
        <translation>أُعيد تحميل «%1» كما كان عند إغلاق Zelto.</translation>
    </message>
    <message>
        <source>The watermarks of the last time are back.</source>
        <translation>عادت العلامات المائية للمرة السابقة.</translation>
    </message>
</context>
<context>
    <name>zelto::TextEditor</name>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>المحتوى</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>وحدات الماكرو</translation>
    </message>
    <message>
        <source>Your text</source>
        <translation>نصك هنا</translation>
    </message>
</context>
<context>
    <name>zelto::TextStyleGroup</name>
    <message>
        <source>Bold</source>
        <translation>غامق</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>تحته خط</translation>
    </message>
    <message>
        <source>Struck through</source>
        <translation>يتوسطه خط</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>محاذاة إلى اليسار</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>محاذاة إلى اليمين</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>الخط:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>الحجم:</translation>
    </message>
    <message>
        <source>Style:</source>
        <translation>النمط:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>اللون:</translation>
    </message>
    <message>
        <source>Effect:</source>
        <translation>التأثير:</translation>
    </message>
    <message>
        <source>Kind of size</source>
        <translation>نوع الحجم</translation>
    </message>
    <message>
        <source>Proportional</source>
        <translation>نسبي</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>ثابت</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>أحجام شائعة</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>Text Colour</source>
        <translation>لون النص</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>الظل</translation>
    </message>
    <message>
        <source>Shadow Colour</source>
        <translation>لون الظل</translation>
    </message>
    <message>
        <source>Embossed letters cast no shadow</source>
        <translation>الأحرف البارزة لا تُلقي ظلاً</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>التأثير</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Emboss</source>
        <translation>بروز</translation>
    </message>
    <message>
        <source>Transparent letters</source>
        <translation>أحرف شفافة</translation>
    </message>
    <message>
        <source>Only the light and dark edges of embossed letters are drawn</source>
        <translation>تُرسم الحواف الفاتحة والداكنة للأحرف البارزة فقط</translation>
    </message>
</context>
<context>
    <name>zelto::TipsDialog</name>
    <message>
        <source>Tips</source>
        <translation>تلميحات</translation>
    </message>
    <message>
        <source>Did you know?</source>
        <translation>هل تعلم؟</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>تلميح</translation>
    </message>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>&amp;عرض التلميحات عند البدء</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>التلميح &amp;التالي</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>zelto::TransparencySlider</name>
    <message>
        <source>Transparency</source>
        <translation>الشفافية</translation>
    </message>
    <message>
        <source>Transparency in per cent</source>
        <translation>الشفافية بالمئة</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkController</name>
    <message>
        <source>Save Setting</source>
        <translation>حفظ الإعداد</translation>
    </message>
    <message>
        <source>There is nothing to save yet. Add a watermark or a border first.</source>
        <translation>لا يوجد ما يُحفظ بعد. أضف علامة مائية أو إطارًا أولاً.</translation>
    </message>
    <message>
        <source>Setting Save Error</source>
        <translation>خطأ في حفظ الإعداد</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>إضافة صورة</translation>
    </message>
    <message>
        <source>Edit Image</source>
        <translation>تحرير الصورة</translation>
    </message>
    <message>
        <source>Add Text</source>
        <translation>إضافة نص</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>تحرير النص</translation>
    </message>
    <message>
        <source>Add Shape</source>
        <translation>إضافة شكل</translation>
    </message>
    <message>
        <source>Edit Shape</source>
        <translation>تحرير الشكل</translation>
    </message>
    <message>
        <source>Add QR Code</source>
        <translation>إضافة رمز QR</translation>
    </message>
    <message>
        <source>Edit QR Code</source>
        <translation>تحرير رمز QR</translation>
    </message>
    <message>
        <source>Drop Watermarks</source>
        <translation>إفلات العلامات المائية</translation>
    </message>
    <message>
        <source>Remove Watermark</source>
        <translation>إزالة العلامة المائية</translation>
    </message>
    <message>
        <source>Choose Filter</source>
        <translation>اختيار المرشّح</translation>
    </message>
    <message>
        <source>Remove Filter</source>
        <translation>إزالة المرشّح</translation>
    </message>
    <message>
        <source>Switch Filter On</source>
        <translation>تشغيل المرشّح</translation>
    </message>
    <message>
        <source>Switch Filter Off</source>
        <translation>إيقاف المرشّح</translation>
    </message>
    <message>
        <source>Edit Effects</source>
        <translation>تحرير التأثيرات</translation>
    </message>
    <message>
        <source>Switch Border and Shadow On</source>
        <translation>تشغيل الإطار والظل</translation>
    </message>
    <message>
        <source>Switch Border and Shadow Off</source>
        <translation>إيقاف الإطار والظل</translation>
    </message>
    <message>
        <source>Remove Border and Shadow</source>
        <translation>إزالة الإطار والظل</translation>
    </message>
    <message>
        <source>Edit Copyright</source>
        <translation>تحرير حقوق النشر</translation>
    </message>
    <message>
        <source>Switch Copyright On</source>
        <translation>تشغيل حقوق النشر</translation>
    </message>
    <message>
        <source>Switch Copyright Off</source>
        <translation>إيقاف حقوق النشر</translation>
    </message>
    <message>
        <source>Remove Copyright</source>
        <translation>إزالة حقوق النشر</translation>
    </message>
    <message>
        <source>Switch Watermark On</source>
        <translation>تشغيل العلامة المائية</translation>
    </message>
    <message>
        <source>Switch Watermark Off</source>
        <translation>إيقاف العلامة المائية</translation>
    </message>
    <message numerus="yes">
        <source>Remove %Ln Row(s)</source>
        <translation>
            <numerusform>عدم إزالة صفوف</numerusform>
            <numerusform>إزالة صف</numerusform>
            <numerusform>إزالة صفين</numerusform>
            <numerusform>إزالة %Ln صفوف</numerusform>
            <numerusform>إزالة %Ln صفًا</numerusform>
            <numerusform>إزالة %Ln صف</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove All Watermarks</source>
        <translation>إزالة كل العلامات المائية</translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed; border and shadow stay. Undo brings everything back.</source>
        <translation>أُزيلت العلامات المائية والمرشّح وبيانات حقوق النشر، وبقي الإطار والظل. «تراجع» يعيد كل شيء.</translation>
    </message>
    <message>
        <source>Watermarks, filter and copyright data removed. Undo brings everything back.</source>
        <translation>أُزيلت العلامات المائية والمرشّح وبيانات حقوق النشر. «تراجع» يعيد كل شيء.</translation>
    </message>
    <message>
        <source>Move Watermark</source>
        <translation>نقل العلامة المائية</translation>
    </message>
    <message>
        <source>Duplicate Watermark</source>
        <translation>تكرار العلامة المائية</translation>
    </message>
    <message>
        <source>Rename Watermark</source>
        <translation>إعادة تسمية العلامة المائية</translation>
    </message>
    <message>
        <source>Cut Watermark</source>
        <translation>قص العلامة المائية</translation>
    </message>
    <message>
        <source>Paste Watermark</source>
        <translation>لصق العلامة المائية</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>إضافة %1</translation>
    </message>
    <message>
        <source>Load Setting</source>
        <translation>تحميل الإعداد</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkListView</name>
    <message>
        <source>Watermarks</source>
        <translation>العلامات المائية</translation>
    </message>
    <message>
        <source>No watermarks yet</source>
        <translation>لا علامات مائية بعد</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkPanel</name>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Add a watermark, a filter, a border or copyright data</source>
        <translation>إضافة علامة مائية أو مرشّح أو إطار أو بيانات حقوق نشر</translation>
    </message>
    <message>
        <source>Add Watermark</source>
        <translation>إضافة علامة مائية</translation>
    </message>
</context>
<context>
    <name>zelto::WatermarkWindowController</name>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>الشفافية:</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Tiling</source>
        <translation>التكرار</translation>
    </message>
</context>
<context>
    <name>zelto::WindowActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;Photos</source>
        <translation>ال&amp;صور</translation>
    </message>
    <message>
        <source>&amp;Watermarks</source>
        <translation>ال&amp;علامات المائية</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>عر&amp;ض</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>&amp;Save Setting</source>
        <translation>&amp;حفظ الإعداد</translation>
    </message>
    <message>
        <source>Save Setting &amp;As...</source>
        <translation>حف&amp;ظ الإعداد باسم...</translation>
    </message>
    <message>
        <source>&amp;Load at Start</source>
        <translation>تحميل &amp;عند البدء</translation>
    </message>
    <message>
        <source>Saved Stac&amp;ks</source>
        <translation>الم&amp;جموعات المحفوظة</translation>
    </message>
    <message>
        <source>Saved Se&amp;ttings...</source>
        <translation>ال&amp;إعدادات المحفوظة...</translation>
    </message>
    <message>
        <source>&amp;Import Settings...</source>
        <translation>ا&amp;ستيراد الإعدادات...</translation>
    </message>
    <message>
        <source>&amp;Export Settings...</source>
        <translation>&amp;تصدير الإعدادات...</translation>
    </message>
    <message>
        <source>Start &amp;Watermarking...</source>
        <translation>&amp;بدء وضع العلامات المائية...</translation>
    </message>
    <message>
        <source>&amp;Pause or Resume</source>
        <translation>إيقاف &amp;مؤقت أو استئناف</translation>
    </message>
    <message>
        <source>&amp;Cancel Watermarking</source>
        <translation>إ&amp;لغاء وضع العلامات المائية</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>&amp;Add Photos...</source>
        <translation>إ&amp;ضافة صور...</translation>
    </message>
    <message>
        <source>Add &amp;Folder...</source>
        <translation>إضافة &amp;مجلد...</translation>
    </message>
    <message>
        <source>&amp;Remove Photo</source>
        <translation>إ&amp;زالة الصورة</translation>
    </message>
    <message>
        <source>Remove A&amp;ll Photos</source>
        <translation>إزالة &amp;كل الصور</translation>
    </message>
    <message>
        <source>&amp;Check All</source>
        <translation>ت&amp;حديد الكل</translation>
    </message>
    <message>
        <source>&amp;Uncheck All</source>
        <translation>إ&amp;لغاء تحديد الكل</translation>
    </message>
    <message>
        <source>&amp;Toggle Check Marks</source>
        <translation>&amp;عكس علامات التحديد</translation>
    </message>
    <message>
        <source>&amp;Next Photo</source>
        <translation>الصورة ال&amp;تالية</translation>
    </message>
    <message>
        <source>&amp;Previous Photo</source>
        <translation>الصورة ال&amp;سابقة</translation>
    </message>
    <message>
        <source>F&amp;ind Photos</source>
        <translation>ال&amp;بحث عن صور</translation>
    </message>
    <message>
        <source>&amp;Sort by Name</source>
        <translation>ت&amp;رتيب حسب الاسم</translation>
    </message>
    <message>
        <source>Sort by &amp;Date Taken</source>
        <translation>ترتيب حسب تاريخ الالت&amp;قاط</translation>
    </message>
    <message>
        <source>&amp;Text...</source>
        <translation>&amp;نص...</translation>
    </message>
    <message>
        <source>&amp;Image...</source>
        <translation>&amp;صورة...</translation>
    </message>
    <message>
        <source>&amp;Shape...</source>
        <translation>&amp;شكل...</translation>
    </message>
    <message>
        <source>&amp;QR Code...</source>
        <translation>&amp;رمز QR...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;مرشّح...</translation>
    </message>
    <message>
        <source>&amp;Border and Shadow...</source>
        <translation>&amp;إطار وظل...</translation>
    </message>
    <message>
        <source>&amp;Copyright...</source>
        <translation>&amp;حقوق النشر...</translation>
    </message>
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
        <source>&amp;Duplicate</source>
        <translation>ت&amp;كرار</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;تحرير...</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>إعادة ت&amp;سمية</translation>
    </message>
    <message>
        <source>&amp;Show or Hide</source>
        <translation>إ&amp;ظهار أو إخفاء</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>نقل لأ&amp;على</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>نقل لأس&amp;فل</translation>
    </message>
    <message>
        <source>&amp;Remove Watermark</source>
        <translation>إ&amp;زالة العلامة المائية</translation>
    </message>
    <message>
        <source>Remove A&amp;ll Watermarks</source>
        <translation>إزالة &amp;كل العلامات المائية</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>&amp;Fit to Screen</source>
        <translation>م&amp;لاءمة الشاشة</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>ال&amp;حجم الفعلي</translation>
    </message>
    <message>
        <source>&amp;Contact View</source>
        <translation>عرض الصور ال&amp;مصغّرة</translation>
    </message>
    <message>
        <source>Show Without &amp;Marks (Hold F8)</source>
        <translation>عرض &amp;بلا علامات (استمر بضغط F8)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>ملء ال&amp;شاشة</translation>
    </message>
    <message>
        <source>&amp;Tips</source>
        <translation>&amp;تلميحات</translation>
    </message>
    <message>
        <source>&amp;Check for a New Version</source>
        <translation>التحقق من إصدار &amp;جديد</translation>
    </message>
    <message>
        <source>&amp;About Zelto</source>
        <translation>&amp;حول Zelto</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ال&amp;دليل</translation>
    </message>
    <message>
        <source>Not while photos are being watermarked</source>
        <translation>ليس أثناء وضع العلامات المائية على الصور</translation>
    </message>
    <message>
        <source>No photos are being watermarked</source>
        <translation>لا توضع علامات مائية على أي صور الآن</translation>
    </message>
    <message>
        <source>Retr&amp;y Failed</source>
        <translation>إعادة محاولة ال&amp;فاشلة</translation>
    </message>
    <message>
        <source>No photo has failed</source>
        <translation>لم تفشل أي صورة</translation>
    </message>
    <message>
        <source>Add photos first</source>
        <translation>أضف صورًا أولاً</translation>
    </message>
    <message>
        <source>Add photos or a watermark first</source>
        <translation>أضف صورًا أو علامة مائية أولاً</translation>
    </message>
    <message>
        <source>There are no watermarks yet</source>
        <translation>لا توجد علامات مائية بعد</translation>
    </message>
    <message>
        <source>Select a watermark first</source>
        <translation>حدّد علامة مائية أولاً</translation>
    </message>
    <message>
        <source>There is nothing to save yet</source>
        <translation>لا يوجد ما يُحفظ بعد</translation>
    </message>
    <message>
        <source>Save these watermarks under a name first</source>
        <translation>احفظ هذه العلامات المائية باسم أولاً</translation>
    </message>
</context>
<context>
    <name>zelto::ZeltoController</name>
    <message>
        <source>Sort by Name</source>
        <translation>الترتيب حسب الاسم</translation>
    </message>
    <message>
        <source>Sort by Date Taken</source>
        <translation>الترتيب حسب تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Reading dates...</source>
        <translation>جارٍ قراءة التواريخ...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photo(s) read</source>
        <translation>
            <numerusform>لم تُقرأ أي صورة</numerusform>
            <numerusform>قُرئت صورة واحدة</numerusform>
            <numerusform>قُرئت صورتان</numerusform>
            <numerusform>قُرئت %Ln صور</numerusform>
            <numerusform>قُرئت %Ln صورة</numerusform>
            <numerusform>قُرئت %Ln صورة</numerusform>
        </translation>
    </message>
</context>
</TS>
