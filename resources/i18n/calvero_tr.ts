<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Devam etmek için “İleri” düğmesine tıklayın</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Sürücü adı:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Dosya sistemi:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Kapasite:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Boş alan:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Sürücüleri Yenile</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Silme yöntemini seçin</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Hızlı Sıfır Yazma (verilerin üzerine sıfır yazar)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Rastgele </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (ABD Savunma Bakanlığı Standardı) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (ABD Deniz Kuvvetleri Standardı) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (Kuzey Atlantik Antlaşması Örgütü Standardı)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (Alman Standardı) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman Yöntemi</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Korunmasız veriler: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Boş alan güvenli bir şekilde siliniyor</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Geçen süre:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Silinen veriler:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Boş alan:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Bulut Denetimi </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Bulut Denetimi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Devam Et</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Dikkat!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Seçili sürücünün boş alanını silmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Lütfen dikkat!
Bu sürücüdeki tüm dosyaları kapatın ve işlem sırasında sürücüye veri eklemeyin.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Bilinmeyen bir hata oluştu</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Uygulamayı Yeniden Başlat</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Bu sürücü salt okunur. Lütfen başka bir sürücü seçin.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>Silme işlemi durduruldu</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Silme işlemi sürüyor</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Önce silme işlemini iptal edin, ardından uygulamadan çıkın.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Aşama 1: Veriler çözümleniyor…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Aşama 2: Veriler güvenli bir şekilde siliniyor…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Lütfen bekleyin, geçerli işlem tamamlanıyor…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Yöneticiniz Calvero işlemini başarıyla tamamladı
Sürücü: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Ana Sayfa</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Hemen Edinin</translation>
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
        <translation>Sürücüler</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Bir sürücü seçin</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Bağlama yolu:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Sabit sürücü</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Çıkarılabilir sürücü</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Ağ sürücüsü</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Sürücü bulunamadı</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Bir sürücü bağlayın, ardından “Sürücüleri Yenile” düğmesine basın.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Silinecek alan: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Geçiş sayısı: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Hiçbir şey yazmaz</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Hiçbir şey yazmaz: Boş alan ayrılır ve olduğu gibi geri verilir.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%2 üzerindeki %1 boş alanın üzerine yazıldı.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>%3 üzerindeki %2 boş alanın yalnızca %1 kadarının üzerine yazıldı. Silinen veriler orada hâlâ okunabilir olabilir.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Hiçbir şeyin üzerine yazılmadı: bu yöntem veri yazmaz.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>%1 sürücüsündeki boş alanın bir bölümü silinemedi. Daha önce silinmiş veriler orada hâlâ okunabilir olabilir.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Boş alan silindi, ancak “%1” kaldırılamadı. İzinleri değiştirip klasörü kaldırın veya sürücüyü yeniden silin.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>%1 sürücüsü çıkarıldı veya arızalandı. Daha önce silinmiş veriler sürücüde hâlâ okunabilir olabilir.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>%1 sürücüsünün altındaki depolama dolu veya arızalı. Sürücüyü çıkarmadan önce orada yer açın. Silinen veriler sürücüde hâlâ okunabilir olabilir.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Boş alanı silinebilecek bir sürücü yok.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Bu sürücüye yazma izniniz yok. Başka bir sürücü seçin veya sürücünün yöneticisine başvurun.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Bu sürücüye yazma izniniz yok. Başka bir sürücü seçin veya boş alanını yönetici olarak silmek için bu komutu bir uçbirimde çalıştırın.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Bu sürücüye yazma izniniz yok. Bir kullanıcı %1 programını değiştirebildiği için program yönetici olarak başlatılmamalıdır. Calvero programını yöneticiye kurdurun, sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Komut</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Komutu kopyala</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Bu sürücünün boş alanı şu anda başka bir işlem tarafından siliniyor. Bitmesini bekleyin veya başka bir sürücü seçin.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Bu sürücü artık bağlı değil. “Sürücüleri Yenile” düğmesine basın.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Bu sürücü yanıt vermiyor. Bağlantısını denetleyin, ardından “Sürücüleri Yenile” düğmesine basın.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Bu sürücünün bulunduğu depolamada, sürücünün gösterdiğinden daha az yer var. Orada yer açın veya başka bir sürücü seçin.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Bu sürücüde Calvero tarafından oluşturulmamış bir “%1” klasörü var. Klasörü yeniden adlandırın veya kaldırın, ardından yeniden deneyin.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Bu sürücüde önceki bir işlemden kalmış ve kilitli olan bir “%1” klasörü var. Klasörün kilidini açın veya klasörü kaldırın, ardından yeniden deneyin.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Silme yöntemlerine geçer.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Sürücülere geri döner.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Onay aldıktan sonra silmeyi başlatır.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Silmeyi durdurur ve geçici dosyaları kaldırır.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Bağlı sürücülerin listesini yeniler.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Calvero uygulamasını kapatır ve Ondrel MORE uygulamasını açar.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Yardım sayfasını web tarayıcısında açar.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Bulut portalını web tarayıcısında açar.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Sayfayı web tarayıcısında açar.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Boş alanı silinecek sürücüyü seçin.</translation>
    </message>
</context>
</TS>
