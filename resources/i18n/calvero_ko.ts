<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>계속하려면 ‘다음’을 클릭하세요</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>드라이브 이름:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>파일 시스템:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>용량:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>여유 공간:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>드라이브 새로 고침</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>지우기 방식 선택</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>빠른 0 쓰기(데이터를 0으로 덮어씀)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>무작위 </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M(미국 국방부 표준) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL(미국 해군 표준) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O.(북대서양 조약 기구 표준)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R.(독일 표준) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman 방식</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>보호되지 않은 데이터: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>여유 공간을 안전하게 지우는 중</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>경과 시간:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>지운 데이터:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>여유 공간:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>클라우드 제어 </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>클라우드 제어</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>진행</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>경고!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>선택한 드라이브의 여유 공간을 지우시겠습니까?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>예</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>주의하세요!
이 드라이브의 파일을 모두 닫고, 작업 중에는 드라이브에 데이터를 추가하지 마세요.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>알 수 없는 오류가 발생했습니다</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>애플리케이션 다시 시작</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>읽기 전용 드라이브입니다. 다른 드라이브를 선택하세요.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>지우기 작업이 중단되었습니다</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>지우기 작업이 진행 중입니다</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>지우기를 취소한 다음 애플리케이션을 종료하세요.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>1단계: 데이터를 분석하는 중…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>2단계: 데이터를 안전하게 지우는 중…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>잠시 기다려 주세요. 현재 작업을 마무리하는 중…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>관리자가 Calvero 작업을 성공적으로 완료했습니다
대상: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>지금 받기</translation>
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
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>드라이브 선택</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>마운트 경로:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>고정 드라이브</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>이동식 드라이브</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>네트워크 드라이브</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>드라이브를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>드라이브를 연결한 다음 ‘드라이브 새로 고침’을 누르세요.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>지울 공간: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>쓰기 횟수: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>쓰지 않음</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>아무것도 쓰지 않습니다. 여유 공간을 할당한 후 그대로 돌려놓습니다.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%2의 여유 공간 %1을(를) 덮어썼습니다.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>%3의 여유 공간 %2 중 %1만 덮어썼습니다. 삭제된 데이터를 아직 읽을 수 있을지도 모릅니다.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>아무것도 덮어쓰지 않았습니다. 이 방식은 데이터를 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>%1의 여유 공간 일부를 지우지 못했습니다. 삭제된 데이터를 아직 읽을 수 있을지도 모릅니다.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>여유 공간은 지웠지만 ‘%1’을(를) 제거하지 못했습니다. 권한을 바꾸어 제거하거나 드라이브를 다시 지우세요.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>드라이브 %1이(가) 제거되었거나 고장 났습니다. 삭제된 데이터를 아직 읽을 수 있을지도 모릅니다.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>드라이브 %1의 기반 저장소가 가득 찼거나 고장 났습니다. 드라이브를 제거하기 전에 그곳에 공간을 확보하십시오. 드라이브에서 삭제된 데이터를 아직 읽을 수 있을지도 모릅니다.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>여유 공간을 지울 수 있는 드라이브가 없습니다.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>이 드라이브에 쓸 권한이 없습니다. 다른 드라이브를 선택하거나 드라이브 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>이 드라이브에 쓸 권한이 없습니다. 다른 드라이브를 선택하거나, 터미널에서 이 명령을 실행하여 관리자 권한으로 여유 공간을 지우세요.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>이 드라이브에 쓸 권한이 없습니다. 사용자가 %1 프로그램을 변경할 수 있으므로 관리자 권한으로 시작해서는 안 됩니다. 관리자에게 Calvero 설치를 요청한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>명령 복사</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>다른 프로세스가 이 드라이브의 여유 공간을 지우고 있습니다. 끝날 때까지 기다리거나 다른 드라이브를 선택하세요.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>이 드라이브는 더 이상 연결되어 있지 않습니다. ‘드라이브 새로 고침’을 누르세요.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>이 드라이브가 응답하지 않습니다. 연결을 확인한 다음 ‘드라이브 새로 고침’을 누르세요.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>이 드라이브가 놓인 저장소의 여유 공간이 드라이브에 표시된 것보다 적습니다. 그곳에 공간을 확보하거나 다른 드라이브를 선택하세요.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>이 드라이브에는 Calvero에서 만들지 않은 ‘%1’ 폴더가 있습니다. 폴더의 이름을 바꾸거나 제거한 다음 다시 시도하세요.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>이 드라이브에는 이전 작업이 남긴 잠긴 ‘%1’ 폴더가 있습니다. 잠금을 풀거나 제거한 다음 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>지우기 방식 선택으로 이동합니다.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>드라이브 선택으로 돌아갑니다.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>확인 후 지우기를 시작합니다.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>지우기를 중단하고 임시 파일을 제거합니다.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>연결된 드라이브 목록을 새로 고칩니다.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Calvero를 닫고 Ondrel MORE를 엽니다.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>웹 브라우저에서 도움말 페이지를 엽니다.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>웹 브라우저에서 클라우드 포털을 엽니다.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>웹 브라우저에서 페이지를 엽니다.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>여유 공간을 지울 드라이브를 선택하세요.</translation>
    </message>
</context>
</TS>
