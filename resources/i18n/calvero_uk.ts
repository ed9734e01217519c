<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Натисніть «Далі», щоб продовжити</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Назва диска:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Файлова система:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Місткість:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Вільне місце:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Оновити диски</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Виберіть метод стирання</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Низький</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Середній</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Високий</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Швидкий запис нулів (перезаписує дані нулями)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Випадкові дані </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (стандарт Міністерства оборони США) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (стандарт ВМС США) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (стандарт Організації Північноатлантичного договору)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (німецький стандарт) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Метод Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Незахищені дані: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Безпечне стирання вільного місця</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Минуло часу:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Стерто даних:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Вільне місце:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Хмарне керування </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Хмарне керування</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Продовжити</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Увага!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Ви дійсно хочете стерти вільне місце на вибраному диску?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Так</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Важливо!
Закрийте всі файли на цьому диску й не записуйте на нього дані під час стирання.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Інформація</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Сталася невідома помилка</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Перезапустити програму</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Цей диск доступний лише для читання. Виберіть інший диск.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>Стирання перервано</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Триває стирання</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Спочатку скасуйте стирання, а потім закрийте програму.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Етап 1: аналіз даних…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Етап 2: безпечне стирання даних…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Зачекайте, завершується поточна операція…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Ваш адміністратор успішно виконав завдання Calvero
на диску: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Головна</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Отримати зараз</translation>
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
        <translation>Диски</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Виберіть диск</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Точка монтування:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Незнімний диск</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Знімний диск</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Мережевий диск</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Дисків не знайдено</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Під’єднайте диск, а потім натисніть «Оновити диски».</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Місце для стирання: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Кількість проходів: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Нічого не записує</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Нічого не записує: вільне місце займається і звільняється без змін.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Перебіг</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>Перезаписано %1 вільного місця на диску %2.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Перезаписано лише %1 з %2 вільного місця на диску %3. Можливо, видалені дані там усе ще можна прочитати.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Нічого не перезаписано: цей метод не записує даних.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Не вдалося стерти частину вільного місця на диску %1. Можливо, видалені дані там усе ще можна прочитати.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Вільне місце стерто, але не вдалося вилучити «%1». Змініть права доступу й вилучіть папку або зітріть диск ще раз.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>Диск %1 від’єднано або він вийшов з ладу. Можливо, видалені дані на ньому все ще можна прочитати.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>Сховище, на якому розміщено диск %1, заповнене або виходить з ладу. Звільніть там місце, перш ніж від’єднати диск. Можливо, видалені дані на диску все ще можна прочитати.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Немає диска, на якому можна стерти вільне місце.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>У вас немає дозволу на запис на цей диск. Виберіть інший диск або зверніться до його адміністратора.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>У вас немає дозволу на запис на цей диск. Виберіть інший диск або виконайте цю команду в терміналі, щоб стерти вільне місце на ньому як адміністратор.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>У вас немає дозволу на запис на цей диск. Користувач може змінити програму %1, тому її не можна запускати від імені адміністратора. Попросіть адміністратора встановити Calvero, а потім спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Копіювати команду</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Вільне місце на цьому диску зараз стирає інший процес. Зачекайте, доки він завершиться, або виберіть інший диск.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Цей диск більше не під’єднано. Натисніть «Оновити диски».</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Цей диск не відповідає. Перевірте його під’єднання, а потім натисніть «Оновити диски».</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Сховище, на якому розташовано цей диск, має менше місця, ніж показує диск. Звільніть там місце або виберіть інший диск.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Цей диск містить папку «%1», яку створила не програма Calvero. Перейменуйте або вилучіть її, а потім спробуйте ще раз.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Цей диск містить папку «%1», яку залишила попередня операція і яку заблоковано. Розблокуйте або вилучіть її, а потім спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Переходить до методів стирання.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Повертає до дисків.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Починає стирання після підтвердження.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Зупиняє стирання й вилучає тимчасові файли.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Оновлює список під’єднаних дисків.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Закриває Calvero й відкриває Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Відкриває сторінку довідки у браузері.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Відкриває хмарний портал у браузері.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Відкриває сторінку у браузері.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Виберіть диск, вільне місце на якому потрібно стерти.</translation>
    </message>
</context>
</TS>
