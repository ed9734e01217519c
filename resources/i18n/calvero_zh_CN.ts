<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>单击“下一步”继续</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>驱动器名称：</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>文件系统：</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>容量：</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>可用空间：</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>重新加载驱动器</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>选择擦除方法</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>快速写零（用 0 覆盖数据）</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>随机 </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M（美国国防部标准） </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL（美国海军标准） </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O.（北大西洋公约组织标准）</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R.（德国标准） </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman 方法</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>未受保护的数据： </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>正在安全擦除可用空间</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>已用时间：</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>已擦除数据：</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>可用空间：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>云控制 </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>云控制</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>警告！</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>确定要擦除所选驱动器的可用空间吗？</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>是</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>请注意！
请关闭此驱动器上的所有文件，并且在擦除过程中不要向其中添加数据。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>发生未知错误</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>重新启动应用程序</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>此驱动器为只读，请选择其他驱动器。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>擦除过程已中止</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>擦除过程正在进行</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>请先取消擦除，然后再退出应用程序。</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>阶段 1：正在分析数据…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>阶段 2：正在安全擦除数据…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>请稍候，正在完成当前操作…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>您的管理员已成功完成 Calvero 擦除
驱动器：%@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>立即获取</translation>
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
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>选择驱动器</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>挂载路径：</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>固定驱动器</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>可移动驱动器</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>网络驱动器</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>未找到驱动器</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>请连接驱动器，然后按“重新加载驱动器”。</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>待擦除空间： </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>擦除遍数：%1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>不写入任何数据</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>不写入任何数据：占用可用空间后将其原样释放。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>已覆盖 %2 上 %1 的可用空间。</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>%3 上 %2 的可用空间中仅覆盖了 %1。其中已删除的数据可能仍可读取。</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>未覆盖任何内容：此方法不写入数据。</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>%1 的部分可用空间未能擦除。其中已删除的数据可能仍可读取。</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>可用空间已擦除，但“%1”未能移除。请更改权限并将其移除，或再次擦除该驱动器。</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>驱动器 %1 已被移除或发生故障。其中已删除的数据可能仍可读取。</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>驱动器 %1 背后的存储已满或出现故障。移除驱动器之前，请在那里腾出空间。其中已删除的数据可能仍可读取。</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>没有可擦除其可用空间的驱动器。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>您无权写入此驱动器。请选择其他驱动器，或咨询其管理员。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>您无权写入此驱动器。请选择其他驱动器，或在终端中运行此命令，以管理员身份擦除其可用空间。</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>您无权写入此驱动器。用户可以更改程序 %1，因此不得以管理员身份启动它。请让管理员安装 Calvero，然后重试。</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>复制命令</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>另一个进程正在擦除此驱动器的可用空间。请等待其结束，或选择其他驱动器。</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>此驱动器已断开连接。请按“重新加载驱动器”。</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>此驱动器没有响应。请检查其连接，然后按“重新加载驱动器”。</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>此驱动器所在的存储空间小于驱动器显示的空间。请在该处腾出空间，或选择其他驱动器。</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>此驱动器上有一个并非由 Calvero 创建的文件夹“%1”。请将其重命名或移除，然后重试。</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>此驱动器上有一个先前操作留下的、已锁定的文件夹“%1”。请将其解锁或移除，然后重试。</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>继续选择擦除方法。</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>返回驱动器列表。</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>确认后开始擦除。</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>停止擦除并移除临时文件。</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>重新列出已连接的驱动器。</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>关闭 Calvero 并打开 Ondrel MORE。</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>在网络浏览器中打开帮助页面。</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>在网络浏览器中打开云门户。</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>在网络浏览器中打开此页面。</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>选择要擦除其可用空间的驱动器。</translation>
    </message>
</context>
</TS>
