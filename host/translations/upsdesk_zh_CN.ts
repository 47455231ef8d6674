<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AddOperator</name>
    <message>
        <source>not enough memory to hash the password</source>
        <translation>内存不足，无法对密码做散列</translation>
    </message>
</context>
<context>
    <name>AddressRange</name>
    <message>
        <source>Enter a range as 10.0.0.0/24, 10.0.0.5-10.0.0.60 or 10.0.0.5-60.</source>
        <translation>请输入范围，如 10.0.0.0/24、10.0.0.5-10.0.0.60 或 10.0.0.5-60。</translation>
    </message>
    <message>
        <source>The range has %1 addresses; at most %2 are asked at a time.</source>
        <translation>该范围有 %1 个地址；一次最多询问 %2 个。</translation>
    </message>
</context>
<context>
    <name>Attention</name>
    <message numerus="yes">
        <source>%n UPS(es), none needs attention</source>
        <translation>
            <numerusform>%n 台 UPS，均无需关注</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n UPS(es) need attention</source>
        <translation>
            <numerusform>%n 台 UPS 中有 %1 台需要关注</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckConfig</name>
    <message>
        <source>there is no file %1; the defaults apply</source>
        <translation>没有文件 %1；采用默认值</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>%1: %2, sent at %3</source>
        <translation>%1：%2，发送于 %3</translation>
    </message>
    <message>
        <source>Commands under way</source>
        <translation>命令执行中</translation>
    </message>
    <message>
        <source>Close while commands have no result yet?</source>
        <translation>命令尚无结果，仍要关闭吗？</translation>
    </message>
    <message>
        <source>%1

A command that was sent is not taken back by closing. It may be left half-done: sent, but not followed to its end, so that its result stays unknown; a command that takes several steps may stop between them.</source>
        <translation>%1

关闭并不会撤回已发送的命令。它可能半途而废：已发送，但未跟踪到底，因而结果未知；分几步执行的命令可能停在中间。</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CommandChannel</name>
    <message>
        <source>The command for notifications is too slow: %1 wait for it.</source>
        <translation>通知命令太慢：有 %1 条在等待。</translation>
    </message>
    <message>
        <source>The command for notifications was ended: it crashed or ran longer than %1 s.</source>
        <translation>通知命令已被终止：它崩溃了，或运行超过 %1 s。</translation>
    </message>
    <message>
        <source>The command for notifications failed with exit code %1.</source>
        <translation>通知命令失败，退出码为 %1。</translation>
    </message>
    <message>
        <source>The command for notifications cannot be started: %1</source>
        <translation>通知命令无法启动：%1</translation>
    </message>
</context>
<context>
    <name>CommandDesk</name>
    <message>
        <source>Nobody who may command this device is logged in.</source>
        <translation>没有可对此设备下命令的人员登录。</translation>
    </message>
    <message>
        <source>%1 may look, but not command: that takes level %2.</source>
        <translation>%1 可以查看，但不能下命令：需要级别 %2。</translation>
    </message>
    <message>
        <source>Unknown command %1</source>
        <translation>未知命令 %1</translation>
    </message>
    <message>
        <source>Nobody could be asked whether load may lose power.</source>
        <translation>无人可询问负载是否可以断电。</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>未发送任何内容。</translation>
    </message>
    <message>
        <source>The device was removed or changed before it answered.</source>
        <translation>设备在应答之前已被移除或更改。</translation>
    </message>
    <message>
        <source>The device was removed or changed; nothing was sent.</source>
        <translation>设备已被移除或更改；未发送任何内容。</translation>
    </message>
</context>
<context>
    <name>CommandTerms</name>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>the whole UPS</source>
        <translation>整台 UPS</translation>
    </message>
    <message>
        <source>output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>%1 off at once</source>
        <translation>%1立即关闭</translation>
    </message>
    <message>
        <source>%1 off within %2</source>
        <translation>%1在 %2 内关闭</translation>
    </message>
    <message>
        <source>%1 off in %2</source>
        <translation>%1在 %2 后关闭</translation>
    </message>
    <message>
        <source>output off at once, and on again after the UPS&apos;s own time</source>
        <translation>输出立即关闭，经 UPS 自身设定的时间后恢复</translation>
    </message>
    <message>
        <source>output off at once for %1</source>
        <translation>输出立即关闭，持续 %1</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1，持续 %2 分钟</translation>
    </message>
    <message>
        <source>%1 (or by the UPS&apos;s own times, where these are fixed)</source>
        <translation>%1（若 UPS 自身时间固定，则以其为准）</translation>
    </message>
    <message>
        <source>%1 W</source>
        <translation>%1 W</translation>
    </message>
    <message>
        <source>%1 kW</source>
        <translation>%1 kW</translation>
    </message>
    <message>
        <source>how much load loses power is not known</source>
        <translation>不知道有多少负载会断电</translation>
    </message>
    <message>
        <source>%1 of load lose power</source>
        <translation>%1 负载将断电</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1：%2；%3</translation>
    </message>
    <message>
        <source>restart, %1</source>
        <translation>重启，%1</translation>
    </message>
</context>
<context>
    <name>ConfigDocument</name>
    <message>
        <source>%1; the line is skipped</source>
        <translation>%1；跳过该行</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1；跳过该节</translation>
    </message>
    <message>
        <source>[%1] stands already in line %2; this section is skipped</source>
        <translation>[%1] 已在第 %2 行出现；跳过该节</translation>
    </message>
    <message>
        <source>and more; further faults are not listed</source>
        <translation>还有更多；其余错误不再列出</translation>
    </message>
    <message>
        <source>stands before the first [section]; the line is skipped</source>
        <translation>位于第一个 [节] 之前；跳过该行</translation>
    </message>
    <message>
        <source>%1 stands already in line %2; the line is skipped</source>
        <translation>%1 已在第 %2 行出现；跳过该行</translation>
    </message>
    <message>
        <source>the section has more than %1 keys; the line is skipped</source>
        <translation>该节的键超过 %1 个；跳过该行</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 未写入，因为其中有错误（第 %2 行：%3）；请先用文本编辑器修正</translation>
    </message>
    <message>
        <source>%1 is not written because it was changed by another program; read it again and repeat the change</source>
        <translation>%1 未写入，因为它已被其他程序更改；请重新读取并重做更改</translation>
    </message>
</context>
<context>
    <name>ConfigKeys</name>
    <message>
        <source>&amp;Poll every</source>
        <translation>轮询间隔(&amp;P)</translation>
    </message>
    <message>
        <source>Battery &amp;low below</source>
        <translation>电池电量低于(&amp;L)</translation>
    </message>
    <message>
        <source>Battery &amp;critical below</source>
        <translation>电池电量危急低于(&amp;C)</translation>
    </message>
    <message>
        <source>Little time left &amp;below</source>
        <translation>剩余时间不足低于(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;High load above</source>
        <translation>负载偏高高于(&amp;H)</translation>
    </message>
    <message>
        <source>Battery too &amp;warm above</source>
        <translation>电池过热高于(&amp;W)</translation>
    </message>
    <message>
        <source>Log operators out &amp;after</source>
        <translation>操作员注销于(&amp;A)</translation>
    </message>
    <message>
        <source>Them&amp;e</source>
        <translation>主题(&amp;E)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>动画(&amp;M)</translation>
    </message>
    <message>
        <source>Flows move</source>
        <translation>能量流移动</translation>
    </message>
    <message>
        <source>Flows stand</source>
        <translation>能量流静止</translation>
    </message>
    <message>
        <source>&amp;Keep secrets in</source>
        <translation>机密信息保存于(&amp;K)</translation>
    </message>
    <message>
        <source>the desktop&apos;s keychain</source>
        <translation>桌面密钥环</translation>
    </message>
    <message>
        <source>a file that only you can read</source>
        <translation>只有您能读取的文件</translation>
    </message>
    <message>
        <source>&amp;Kept in</source>
        <translation>保存于(&amp;K)</translation>
    </message>
    <message>
        <source>This &amp;desk</source>
        <translation>本台(&amp;D)</translation>
    </message>
    <message>
        <source>records</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>does not record</source>
        <translation>不记录</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>加密(&amp;E)</translation>
    </message>
    <message>
        <source>always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>always with a password</source>
        <translation>有密码时始终</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>&amp;Authorities</source>
        <translation>证书颁发机构(&amp;A)</translation>
    </message>
    <message>
        <source>Keep every &amp;poll for</source>
        <translation>每次轮询保留(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;minutes for</source>
        <translation>分钟均值保留(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;quarters of an hour and the journal for</source>
        <translation>刻钟均值和日志保留(&amp;Q)</translation>
    </message>
    <message>
        <source>from warnings on</source>
        <translation>自警告起</translation>
    </message>
    <message>
        <source>from alarms on</source>
        <translation>自告警起</translation>
    </message>
    <message>
        <source>when critical</source>
        <translation>危急时</translation>
    </message>
    <message>
        <source>a time like 22:00</source>
        <translation>形如 22:00 的时间</translation>
    </message>
    <message>
        <source>&amp;Desktop notifications</source>
        <translation>桌面通知(&amp;D)</translation>
    </message>
    <message>
        <source>with so&amp;und</source>
        <translation>带声音(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Quiet from</source>
        <translation>静默自(&amp;Q)</translation>
    </message>
    <message>
        <source>to</source>
        <translation>至</translation>
    </message>
    <message>
        <source>&amp;Command</source>
        <translation>命令(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;run it</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Webhook</source>
        <translation>Webhook(&amp;W)</translation>
    </message>
    <message>
        <source>an address that begins with https://</source>
        <translation>以 https:// 开头的地址</translation>
    </message>
    <message>
        <source>t&amp;ell it</source>
        <translation>告知(&amp;E)</translation>
    </message>
    <message>
        <source>Serve &amp;metrics at</source>
        <translation>指标服务于(&amp;M)</translation>
    </message>
    <message>
        <source>sha256: and the 64 hexadecimal digits of a certificate&apos;s fingerprint</source>
        <translation>sha256: 加证书指纹的 64 位十六进制数字</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 %3</source>
        <translation>%1 到 %2 %3 的整数</translation>
    </message>
    <message>
        <source>yes or no</source>
        <translation>yes 或 no</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation>最多 %1 个字符的文本</translation>
    </message>
</context>
<context>
    <name>ConfigLine</name>
    <message>
        <source>the quoted text does not end, or holds an escape other than \&quot; \\ \n \t \uXXXX</source>
        <translation>引号内的文本没有结束，或含有 \&quot; \\ \n \t \uXXXX 之外的转义</translation>
    </message>
    <message>
        <source>a section looks like [type] or [type &quot;name&quot;]</source>
        <translation>节的写法是 [类型] 或 [类型 &quot;名称&quot;]</translation>
    </message>
    <message>
        <source>only a comment may follow the closing bracket</source>
        <translation>右方括号之后只能是注释</translation>
    </message>
    <message>
        <source>neither a [section] nor key = value nor a # comment</source>
        <translation>既不是 [节]，也不是 键 = 值，也不是 # 注释</translation>
    </message>
    <message>
        <source>only a comment may follow the closing quote</source>
        <translation>右引号之后只能是注释</translation>
    </message>
    <message>
        <source>longer than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>holds control characters</source>
        <translation>含有控制字符</translation>
    </message>
    <message>
        <source>is not UTF-8 text</source>
        <translation>不是 UTF-8 文本</translation>
    </message>
</context>
<context>
    <name>ConfigReader</name>
    <message>
        <source>a device or operator needs a name, as in [device &quot;Rack 3&quot;]</source>
        <translation>设备或操作员需要名称，如 [device &quot;Rack 3&quot;]</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>名称超过 %1 个字符</translation>
    </message>
    <message>
        <source>the name holds control characters</source>
        <translation>名称含有控制字符</translation>
    </message>
    <message>
        <source>the name starts or ends with a blank</source>
        <translation>名称以空格开头或结尾</translation>
    </message>
    <message>
        <source>%1 is %2; %3 is used</source>
        <translation>%1 是 %2；采用 %3</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>charge-critical is above charge-low; %1 is used for both</source>
        <translation>charge-critical 高于 charge-low；两者都采用 %1</translation>
    </message>
    <message>
        <source>%1; the section is skipped</source>
        <translation>%1；跳过该节</translation>
    </message>
    <message>
        <source>unknown section &quot;%1&quot;; it is not used. Known are %2, operator and device</source>
        <translation>未知的节 &quot;%1&quot;；不予采用。已知的有 %2、operator 和 device</translation>
    </message>
    <message>
        <source>section %1 takes no name; it is not used</source>
        <translation>节 %1 不带名称；不予采用</translation>
    </message>
    <message>
        <source>%1 is not used: secrets do not belong in this file but in the keychain, or in the file that [secrets] store = file stands for</source>
        <translation>%1 不予采用：机密信息不应写在此文件中，而应在密钥环中，或在 [secrets] store = file 所指的文件中</translation>
    </message>
    <message>
        <source>unknown key &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>未知的键 &quot;%1&quot;；不予采用。已知的有 %2</translation>
    </message>
    <message>
        <source>the device has no address; it is left out</source>
        <translation>设备没有地址；已略去</translation>
    </message>
    <message>
        <source>%1; the device is left out</source>
        <translation>%1；设备已略去</translation>
    </message>
    <message>
        <source>unknown quantity &quot;%1&quot;; it is not used. Known are %2</source>
        <translation>未知的量 &quot;%1&quot;；不予采用。已知的有 %2</translation>
    </message>
    <message>
        <source>%1 is a factor above 0, as 0.1; 1 is used</source>
        <translation>%1 是大于 0 的系数，如 0.1；采用 1</translation>
    </message>
    <message>
        <source>the operator has no level; 0 is used</source>
        <translation>操作员没有级别；采用 0</translation>
    </message>
    <message>
        <source>no valid hash; the operator is left out. Set the password with upsdesk add-operator</source>
        <translation>没有有效的散列值；操作员已略去。请用 upsdesk add-operator 设置密码</translation>
    </message>
</context>
<context>
    <name>ControlNotice</name>
    <message>
        <source>Log in…</source>
        <translation>登录…</translation>
    </message>
    <message>
        <source>Commands are disabled. %1</source>
        <translation>命令已禁用。%1</translation>
    </message>
</context>
<context>
    <name>Desk</name>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>The configuration has faults and is used without them: </source>
        <translation>配置中有错误，已略去错误部分后使用：</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
</context>
<context>
    <name>DeskConfig</name>
    <message>
        <source>there is no device &quot;%1&quot;</source>
        <translation>没有设备 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is a device &quot;%1&quot; already</source>
        <translation>已有设备 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>others may read or write %1, and it holds password hashes; chmod 600 ends that</source>
        <translation>其他人可读写 %1，而其中有密码散列值；chmod 600 可消除此问题</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>设备列表中没有该位置</translation>
    </message>
    <message>
        <source>there is no operator &quot;%1&quot;</source>
        <translation>没有操作员 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is not written because it has faults (line %2: %3); mend it with a text editor first</source>
        <translation>%1 未写入，因为其中有错误（第 %2 行：%3）；请先用文本编辑器修正</translation>
    </message>
</context>
<context>
    <name>DeskHistory</name>
    <message>
        <source>Nothing is recorded: %1</source>
        <translation>未做记录：%1</translation>
    </message>
</context>
<context>
    <name>DeskMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>所有设备(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Journal</source>
        <translation>日志(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;Filter the list</source>
        <translation>筛选列表(&amp;F)</translation>
    </message>
    <message>
        <source>Device &amp;list</source>
        <translation>设备列表(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>事件(&amp;E)</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Poll now</source>
        <translation>立即轮询(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>命令(&amp;C)</translation>
    </message>
    <message>
        <source>Cop&amp;y values</source>
        <translation>复制数值(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>Where the &amp;configuration is</source>
        <translation>配置在何处(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About upsdesk</source>
        <translation>关于 upsdesk(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>Rep&amp;lay</source>
        <translation>回放(&amp;L)</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
</context>
<context>
    <name>DesktopChannel</name>
    <message>
        <source>since %1</source>
        <translation>自 %1 起</translation>
    </message>
    <message>
        <source>The desktop shows no notifications: %1</source>
        <translation>桌面不显示通知：%1</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>There has been no new data for a while.</source>
        <translation>已有一段时间没有新数据。</translation>
    </message>
    <message>
        <source>The poll was not answered in time.</source>
        <translation>轮询未得到及时应答。</translation>
    </message>
</context>
<context>
    <name>DeviceActions</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>添加(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>移除(&amp;R)…</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move d&amp;own</source>
        <translation>下移(&amp;O)</translation>
    </message>
    <message>
        <source>The device is no longer in the list.</source>
        <translation>该设备已不在列表中。</translation>
    </message>
    <message>
        <source>Remove a device</source>
        <translation>移除设备</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the list of devices?</source>
        <translation>从设备列表中移除 &quot;%1&quot; 吗？</translation>
    </message>
    <message>
        <source>Its settings and secrets are deleted. What was recorded of it stays.</source>
        <translation>其设置和机密信息将被删除。已记录的内容会保留。</translation>
    </message>
    <message>
        <source>It is not in the configuration; the list loses it until the next start.</source>
        <translation>它不在配置中；在下次启动之前不再列出。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Add se&amp;veral…</source>
        <translation>添加多台(&amp;V)…</translation>
    </message>
</context>
<context>
    <name>DeviceAddress</name>
    <message>
        <source>&quot;%1&quot; is not one of %2 for %3</source>
        <translation>&quot;%1&quot; 不是 %3 的 %2 之一</translation>
    </message>
    <message>
        <source>user and password of a NUT server belong in the configuration, not in the address</source>
        <translation>NUT 服务器的用户和密码应写在配置中，而不是地址中</translation>
    </message>
    <message>
        <source>a NUT address looks like nut://HOST[:PORT]/UPS</source>
        <translation>NUT 地址形如 nut://HOST[:PORT]/UPS</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; known are %2</source>
        <translation>未知选项 &quot;%1&quot;；已知的有 %2</translation>
    </message>
    <message>
        <source>SNMP secrets belong in the configuration, not in the address</source>
        <translation>SNMP 机密信息应写在配置中，而不是地址中</translation>
    </message>
    <message>
        <source>SNMPv3 needs a user: snmp://USER@HOST?version=3</source>
        <translation>SNMPv3 需要用户：snmp://USER@HOST?version=3</translation>
    </message>
    <message>
        <source>an address starts with sim:, nut:// or snmp://</source>
        <translation>地址以 sim:、nut:// 或 snmp:// 开头</translation>
    </message>
    <message>
        <source>no valid host or port in the address</source>
        <translation>地址中没有有效的主机或端口</translation>
    </message>
    <message>
        <source>a port lies between 1 and 65535</source>
        <translation>端口在 1 到 65535 之间</translation>
    </message>
</context>
<context>
    <name>DeviceAdvanced</name>
    <message>
        <source>Answer &amp;within</source>
        <translation>应答时限(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Retries</source>
        <translation>重试次数(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Shutdown delay</source>
        <translation>关机延时(&amp;S)</translation>
    </message>
    <message>
        <source>Off d&amp;uring a restart</source>
        <translation>重启断电时长(&amp;U)</translation>
    </message>
    <message>
        <source>Shut down the w&amp;hole UPS, not its output alone</source>
        <translation>关闭整台 UPS，而不只是其输出(&amp;H)</translation>
    </message>
    <message>
        <source>For a device that is wrong by a power of ten; empty means 1</source>
        <translation>用于数值差十的幂的设备；留空表示 1</translation>
    </message>
    <message>
        <source>Correction &amp;factors</source>
        <translation>修正系数(&amp;F)</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Network UPS Tools</source>
        <translation>Network UPS Tools</translation>
    </message>
    <message>
        <source>SNMP</source>
        <translation>SNMP</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>模拟器</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Settings of %1</source>
        <translation>%1 的设置</translation>
    </message>
    <message>
        <source>site or room</source>
        <translation>站点或机房</translation>
    </message>
    <message>
        <source>nut://HOST/UPS, snmp://COMMUNITY@HOST or sim:</source>
        <translation>nut://HOST/UPS、snmp://COMMUNITY@HOST 或 sim:</translation>
    </message>
    <message>
        <source>The address in one line; paste one here to fill the fields</source>
        <translation>单行地址；在此粘贴即可填写各栏</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>名称(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>分组(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>类型(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>地址(&amp;A)</translation>
    </message>
    <message>
        <source>Poll &amp;every</source>
        <translation>轮询间隔(&amp;E)</translation>
    </message>
    <message>
        <source>Con&amp;nection</source>
        <translation>连接(&amp;N)</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>高级(&amp;D)</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>已有设备 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Stop &amp;test</source>
        <translation>停止测试(&amp;T)</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>正在询问 %1 …</translation>
    </message>
    <message>
        <source>&amp;Test connection</source>
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message>
        <source>The server looks at user and password only when a command is sent.</source>
        <translation>服务器只在发送命令时才核对用户和密码。</translation>
    </message>
</context>
<context>
    <name>DeviceFacts</name>
    <message>
        <source>Battery test</source>
        <translation>电池测试</translation>
    </message>
    <message>
        <source>Battery discharging</source>
        <translation>电池放电中</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>电池电量低</translation>
    </message>
    <message>
        <source>Battery depleted</source>
        <translation>电池耗尽</translation>
    </message>
    <message>
        <source>Mains lost, on battery</source>
        <translation>市电中断，电池供电</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>旁路供电</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>recorded</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及另外 %1 项</translation>
    </message>
</context>
<context>
    <name>DeviceHistory</name>
    <message>
        <source>Nothing is stored of this device.</source>
        <translation>没有该设备的存储数据。</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>%1 critical</source>
        <translation>%1 危急</translation>
    </message>
    <message>
        <source>%1 alarm</source>
        <translation>%1 告警</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 警告</translation>
    </message>
    <message>
        <source>%1 notice</source>
        <translation>%1 提示</translation>
    </message>
    <message>
        <source>%1 normal</source>
        <translation>%1 正常</translation>
    </message>
</context>
<context>
    <name>DeviceName</name>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Energy flow</source>
        <translation>能量流</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>告警</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>控制</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Simulator</source>
        <translation>模拟器</translation>
    </message>
    <message>
        <source>Simulator, %1</source>
        <translation>模拟器，%1</translation>
    </message>
</context>
<context>
    <name>DeviceSnapshot</name>
    <message>
        <source>Battery fault</source>
        <translation>电池故障</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>电池电量低</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>电池放电终止</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>温度超过上限</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>输入故障</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>输出故障</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>负载超过上限</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>旁路故障</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>UPS 输出已按请求关闭</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>整台 UPS 已按命令关机</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>充电器故障</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>UPS 输出处于关闭状态</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>UPS 系统处于关闭状态</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>风扇故障</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>熔断器故障</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>UPS 故障</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>上次诊断测试失败</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>代理与 UPS 通信故障</translation>
    </message>
    <message>
        <source>UPS is awaiting the return of input power</source>
        <translation>UPS 正在等待输入电源恢复</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>UPS 延时关机倒计时进行中</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>UPS 将切断负载供电</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>测试进行中</translation>
    </message>
    <message>
        <source>battery charge</source>
        <translation>电池电量</translation>
    </message>
    <message>
        <source>remaining time</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>battery voltage</source>
        <translation>电池电压</translation>
    </message>
    <message>
        <source>battery current</source>
        <translation>电池电流</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>电池温度</translation>
    </message>
    <message>
        <source>time on battery</source>
        <translation>电池供电时间</translation>
    </message>
    <message>
        <source>number of mains failures</source>
        <translation>市电故障次数</translation>
    </message>
    <message>
        <source>rated input voltage</source>
        <translation>额定输入电压</translation>
    </message>
    <message>
        <source>rated input frequency</source>
        <translation>额定输入频率</translation>
    </message>
    <message>
        <source>rated output voltage</source>
        <translation>额定输出电压</translation>
    </message>
    <message>
        <source>rated output frequency</source>
        <translation>额定输出频率</translation>
    </message>
    <message>
        <source>rated apparent power</source>
        <translation>额定视在功率</translation>
    </message>
    <message>
        <source>rated active power</source>
        <translation>额定有功功率</translation>
    </message>
    <message>
        <source>input voltage</source>
        <translation>输入电压</translation>
    </message>
    <message>
        <source>input current</source>
        <translation>输入电流</translation>
    </message>
    <message>
        <source>input frequency</source>
        <translation>输入频率</translation>
    </message>
    <message>
        <source>input power</source>
        <translation>输入功率</translation>
    </message>
    <message>
        <source>output voltage</source>
        <translation>输出电压</translation>
    </message>
    <message>
        <source>output current</source>
        <translation>输出电流</translation>
    </message>
    <message>
        <source>output frequency</source>
        <translation>输出频率</translation>
    </message>
    <message>
        <source>output power</source>
        <translation>输出功率</translation>
    </message>
    <message>
        <source>load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>bypass voltage</source>
        <translation>旁路电压</translation>
    </message>
    <message>
        <source>bypass current</source>
        <translation>旁路电流</translation>
    </message>
    <message>
        <source>bypass frequency</source>
        <translation>旁路频率</translation>
    </message>
    <message>
        <source>bypass power</source>
        <translation>旁路功率</translation>
    </message>
    <message>
        <source>%1 of line %2</source>
        <translation>第 %2 相%1</translation>
    </message>
    <message>
        <source> and </source>
        <translation>和</translation>
    </message>
    <message>
        <source>Not reported, shown as 0: %1.</source>
        <translation>未上报，显示为 0：%1。</translation>
    </message>
    <message>
        <source>Split phase: line 1 of 2 is shown.</source>
        <translation>两相：显示 2 相中的第 1 相。</translation>
    </message>
</context>
<context>
    <name>DeviceSummary</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>never any data</source>
        <translation>从无数据</translation>
    </message>
    <message>
        <source>last data %1 ago</source>
        <translation>上次数据在 %1前</translation>
    </message>
    <message>
        <source>now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>live, now</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>live, %1 ago</source>
        <translation>实时，%1前</translation>
    </message>
    <message>
        <source>no new data</source>
        <translation>无新数据</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>自 %1 起</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>可持续</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>Battery %1</source>
        <translation>电池 %1</translation>
    </message>
    <message>
        <source>Live: %1</source>
        <translation>实时：%1</translation>
    </message>
</context>
<context>
    <name>EventDock</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>FileSecretStore</name>
    <message>
        <source>%1 is not used because others may read or write it; &quot;chmod 600&quot; ends that, then change the secrets in it</source>
        <translation>%1 不予采用，因为其他人可读写它；用 &quot;chmod 600&quot; 消除后，请更改其中的机密信息</translation>
    </message>
    <message>
        <source>%1 is not used because it is damaged; mend it, or move it away and enter the secrets again</source>
        <translation>%1 不予采用，因为它已损坏；请修复，或将其移走并重新输入机密信息</translation>
    </message>
</context>
<context>
    <name>FindDevicesDialog</name>
    <message>
        <source>&amp;Tick all</source>
        <translation>全部勾选(&amp;T)</translation>
    </message>
    <message>
        <source>Add several devices</source>
        <translation>添加多台设备</translation>
    </message>
    <message>
        <source>UPSes of a NUT server</source>
        <translation>NUT 服务器的各台 UPS</translation>
    </message>
    <message>
        <source>SNMP agents in a range of addresses</source>
        <translation>地址范围内的 SNMP 代理</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>仅用于命令</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>主机(&amp;H)</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>用户(&amp;S)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>找到的设备</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>What it is</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>site or room, for all that are added</source>
        <translation>站点或机房，用于全部所添加的设备</translation>
    </message>
    <message>
        <source>&amp;Look for</source>
        <translation>查找(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>分组(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>正在询问 %1 …</translation>
    </message>
    <message>
        <source>Asked %1 of %2 addresses …</source>
        <translation>已询问 %2 个地址中的 %1 个 …</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>Nobody answered.</source>
        <translation>没有应答。</translation>
    </message>
    <message>
        <source>Found: %1. Tick what is to be added.</source>
        <translation>找到：%1。请勾选要添加的设备。</translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation>添加 %1 台(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>Each device needs a name.</source>
        <translation>每台设备都需要名称。</translation>
    </message>
    <message>
        <source>There is a device &quot;%1&quot; already.</source>
        <translation>已有设备 &quot;%1&quot;。</translation>
    </message>
</context>
<context>
    <name>FirstRunStrip</name>
    <message>
        <source>Add your &amp;UPS…</source>
        <translation>添加您的 UPS(&amp;U)…</translation>
    </message>
    <message>
        <source>There is no device yet - add your UPS</source>
        <translation>尚无设备 - 请添加您的 UPS</translation>
    </message>
    <message>
        <source>This is a simulation - add your UPS</source>
        <translation>这是模拟 - 请添加您的 UPS</translation>
    </message>
</context>
<context>
    <name>HelpDialogs</name>
    <message>
        <source>Back to all devices</source>
        <translation>回到所有设备</translation>
    </message>
    <message>
        <source>In the list: add, edit, remove a device</source>
        <translation>在列表中：添加、编辑、移除设备</translation>
    </message>
    <message>
        <source>In the list: move a device</source>
        <translation>在列表中：移动设备</translation>
    </message>
    <message>
        <source>In the history: earlier, later; by a whole length</source>
        <translation>在历史中：更早、更晚；整段移动</translation>
    </message>
    <message>
        <source>In the history: less, more time</source>
        <translation>在历史中：缩短、延长时间段</translation>
    </message>
    <message>
        <source>In the history: the values of another row</source>
        <translation>在历史中：另一行的数值</translation>
    </message>
    <message>
        <source>In the history: the oldest, the present</source>
        <translation>在历史中：最早、现在</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>What</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Where the configuration is</source>
        <translation>配置在何处</translation>
    </message>
    <message>
        <source>Devices, thresholds and operators stand in
%1

&quot;upsdesk check-config&quot; says what is wrong in it. How the window was left stands in
%2</source>
        <translation>设备、阈值和操作员在
%1

&quot;upsdesk check-config&quot; 会指出其中的错误。窗口上次的状态在
%2</translation>
    </message>
    <message>
        <source>About upsdesk</source>
        <translation>关于 upsdesk</translation>
    </message>
    <message>
        <source>upsdesk %1
Watches uninterruptible power supplies.

Qt %2
%3 %4</source>
        <translation>upsdesk %1
监视不间断电源。

Qt %2
%3 %4</translation>
    </message>
</context>
<context>
    <name>HistoryCharts</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>电量</translation>
    </message>
    <message>
        <source>Time left on battery</source>
        <translation>电池剩余时间</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>电流</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Battery temperature</source>
        <translation>电池温度</translation>
    </message>
    <message>
        <source>Battery voltage</source>
        <translation>电池电压</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>1 h</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>6 h</source>
        <translation>6 小时</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Show: %1</source>
        <translation>显示：%1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>更早</translation>
    </message>
    <message>
        <source>Left, Page Up</source>
        <translation>左、Page Up</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>更晚</translation>
    </message>
    <message>
        <source>Right, Page Down</source>
        <translation>右、Page Down</translation>
    </message>
    <message>
        <source>Show more time</source>
        <translation>显示更长时间</translation>
    </message>
    <message>
        <source>Show less time</source>
        <translation>显示更短时间</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Follow the present</source>
        <translation>跟随当前</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>Which charts are shown</source>
        <translation>显示哪些图表</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save what is shown</source>
        <translation>保存所显示的内容</translation>
    </message>
    <message>
        <source>As &amp;CSV …</source>
        <translation>存为 CSV(&amp;C) …</translation>
    </message>
    <message>
        <source>As &amp;picture …</source>
        <translation>存为图片(&amp;P) …</translation>
    </message>
    <message>
        <source>There is no history here: this desk records none, or its store is not open yet.</source>
        <translation>这里没有历史：本台不做记录，或其存储尚未打开。</translation>
    </message>
    <message>
        <source>Loading …</source>
        <translation>正在加载 …</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>无法读取历史：%1</translation>
    </message>
    <message>
        <source>Nothing is stored of this device. The simulator is recorded only where it stands in the configuration.</source>
        <translation>没有该设备的存储数据。模拟器只有写入配置后才会被记录。</translation>
    </message>
    <message>
        <source>Nothing is stored of this device yet.</source>
        <translation>尚无该设备的存储数据。</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1，持续 %2</translation>
    </message>
    <message>
        <source>Nothing is stored of this time</source>
        <translation>该时段没有存储数据</translation>
    </message>
    <message>
        <source>Only the latest entries of the journal are shown</source>
        <translation>只显示日志的最新条目</translation>
    </message>
    <message>
        <source>on battery</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>on bypass</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>▴ journal</source>
        <translation>▴ 日志</translation>
    </message>
    <message>
        <source>Save the history</source>
        <translation>保存历史</translation>
    </message>
    <message>
        <source>Saving …</source>
        <translation>正在保存 …</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>未保存：%1</translation>
    </message>
    <message>
        <source>Not saved: %1 cannot be written</source>
        <translation>未保存：无法写入 %1</translation>
    </message>
</context>
<context>
    <name>HistorySpool</name>
    <message>
        <source>cannot make the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>cannot write in the folder %1</source>
        <translation>无法写入文件夹 %1</translation>
    </message>
    <message>
        <source>the spool in %1 is full</source>
        <translation>%1 中的暂存区已满</translation>
    </message>
    <message>
        <source>cannot write the spool in %1: %2</source>
        <translation>无法写入 %1 中的暂存区：%2</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>the driver %1 of QtSql is not installed</source>
        <translation>未安装 QtSql 的驱动 %1</translation>
    </message>
    <message>
        <source>the history was written by a newer upsdesk; update this one</source>
        <translation>历史由更新版本的 upsdesk 写成；请更新本程序</translation>
    </message>
    <message>
        <source>there is no history yet</source>
        <translation>尚无历史</translation>
    </message>
    <message>
        <source>the history is of an older upsdesk; start the desk once so that it brings it up to date</source>
        <translation>历史来自较旧的 upsdesk；请启动一次本台以更新它</translation>
    </message>
</context>
<context>
    <name>HistoryWriter</name>
    <message>
        <source>The history cannot be written: %1. Events are kept on disk until it can.</source>
        <translation>无法写入历史：%1。事件保存在磁盘上，直到可以写入。</translation>
    </message>
    <message>
        <source>The history is written again; nothing is missing.</source>
        <translation>历史已恢复写入；没有缺失。</translation>
    </message>
    <message>
        <source>The history is written again; %1 samples are missing.</source>
        <translation>历史已恢复写入；缺失 %1 个样本。</translation>
    </message>
</context>
<context>
    <name>HostAddresses</name>
    <message>
        <source>There is no host named %1; check the address.</source>
        <translation>没有名为 %1 的主机；请检查地址。</translation>
    </message>
    <message>
        <source>The name %1 could not be looked up; check the network and its name server.</source>
        <translation>无法查询名称 %1；请检查网络及其域名服务器。</translation>
    </message>
    <message>
        <source>Too many names are being looked up; check the network&apos;s name server.</source>
        <translation>正在查询的名称太多；请检查网络的域名服务器。</translation>
    </message>
</context>
<context>
    <name>HostPort</name>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>name or IP address</source>
        <translation>名称或 IP 地址</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>端口(&amp;P)</translation>
    </message>
    <message>
        <source>Range of addresses</source>
        <translation>地址范围</translation>
    </message>
    <message>
        <source>10.0.0.0/24 or 10.0.0.5-60</source>
        <translation>10.0.0.0/24 或 10.0.0.5-60</translation>
    </message>
    <message>
        <source>Enter the name or the IP address of the host.</source>
        <translation>请输入主机的名称或 IP 地址。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a host name nor an IP address.</source>
        <translation>&quot;%1&quot; 既不是主机名也不是 IP 地址。</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>Onset</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>告警</translation>
    </message>
    <message>
        <source>Outage</source>
        <translation>停电</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链路</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>本台</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>危急</translation>
    </message>
    <message>
        <source>%1 d %2</source>
        <translation>%1 天 %2</translation>
    </message>
    <message>
        <source>still so</source>
        <translation>仍在持续</translation>
    </message>
    <message>
        <source>lowest charge %1 %</source>
        <translation>最低电量 %1 %</translation>
    </message>
</context>
<context>
    <name>JournalPage</name>
    <message>
        <source>Any time</source>
        <translation>任何时间</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>最近一小时</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>最近一天</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>最近一周</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>最近一年</translation>
    </message>
    <message>
        <source>Still s&amp;o</source>
        <translation>仍在持续(&amp;O)</translation>
    </message>
    <message>
        <source>Not acknowled&amp;ged</source>
        <translation>未确认(&amp;G)</translation>
    </message>
    <message>
        <source>Ack&amp;nowledge …</source>
        <translation>确认(&amp;N) …</translation>
    </message>
    <message>
        <source>&amp;Export …</source>
        <translation>导出(&amp;E) …</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>回放(&amp;R)</translation>
    </message>
    <message>
        <source>Devi&amp;ce</source>
        <translation>设备(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>类型(&amp;K)</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>时间(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Severity from</source>
        <translation>严重程度自(&amp;S)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>in entry, message or note</source>
        <translation>在条目、消息或备注中</translation>
    </message>
    <message>
        <source>What has begun and is not over: the alarms of the desk</source>
        <translation>已开始而未结束的：本台的告警</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>文本(&amp;X)</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>%1 entries and more</source>
        <translation>%1 条以上</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 条</translation>
    </message>
    <message>
        <source>This desk keeps no history.</source>
        <translation>本台不保存历史。</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Note (may be empty)</source>
        <translation>备注（可留空）</translation>
    </message>
    <message>
        <source>Export the journal</source>
        <translation>导出日志</translation>
    </message>
    <message>
        <source>CSV files (*.csv);;All files (*)</source>
        <translation>CSV 文件 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The journal is in %1</source>
        <translation>日志在 %1 中</translation>
    </message>
    <message>
        <source>The journal was not exported: %1</source>
        <translation>日志未导出：%1</translation>
    </message>
</context>
<context>
    <name>KeychainSecretStore</name>
    <message>
        <source>The desktop&apos;s keychain cannot be used: %1. Start a keychain service, for example GNOME Keyring or KWallet, and log in again; or write &quot;store = file&quot; under [secrets] in the configuration to keep secrets in a file that only you can read.</source>
        <translation>无法使用桌面密钥环：%1。请启动密钥环服务，例如 GNOME Keyring 或 KWallet，然后重新登录；或在配置的 [secrets] 下写入 &quot;store = file&quot;，将机密信息保存在只有您能读取的文件中。</translation>
    </message>
    <message>
        <source>Access to the desktop&apos;s keychain was denied; unlock it and try again.</source>
        <translation>对桌面密钥环的访问被拒绝；请解锁后重试。</translation>
    </message>
    <message>
        <source>it gives no reason</source>
        <translation>它未说明原因</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>它没有应答</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>There are no operators yet. Add one in the settings, under Operators.</source>
        <translation>尚无操作员。请在设置的“操作员”中添加。</translation>
    </message>
    <message>
        <source>Checking …</source>
        <translation>正在核对 …</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>upsdesk</source>
        <translation>upsdesk</translation>
    </message>
    <message>
        <source>This is a wall display: it commands nothing.</source>
        <translation>这是墙面显示屏：不下命令。</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>所有设备(&amp;A)</translation>
    </message>
    <message>
        <source>%1: %2: sent, waiting for the result</source>
        <translation>%1：%2：已发送，等待结果</translation>
    </message>
    <message>
        <source>Journal - upsdesk</source>
        <translation>日志 - upsdesk</translation>
    </message>
    <message>
        <source>Replay: %1 - upsdesk</source>
        <translation>回放：%1 - upsdesk</translation>
    </message>
    <message>
        <source>%1 - upsdesk</source>
        <translation>%1 - upsdesk</translation>
    </message>
    <message>
        <source>(%1) %2</source>
        <translation>(%1) %2</translation>
    </message>
    <message>
        <source>%1: its collector polls it, this desk does not.</source>
        <translation>%1：由其采集器轮询，本台不轮询。</translation>
    </message>
    <message>
        <source>%1: testing the connection …</source>
        <translation>%1：正在测试连接 …</translation>
    </message>
    <message>
        <source>Logged in</source>
        <translation>已登录</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>已注销</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>级别 %1</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>MetricsServer</name>
    <message>
        <source>is no numeric address with a port, like 127.0.0.1:9199</source>
        <translation>不是带端口的数字地址，如 127.0.0.1:9199</translation>
    </message>
    <message>
        <source>Metrics are not served: &quot;%1&quot; %2.</source>
        <translation>指标未提供：&quot;%1&quot; %2。</translation>
    </message>
    <message>
        <source>Metrics are not served: nothing can listen at %1. Another program may do so already.</source>
        <translation>指标未提供：无法在 %1 监听。也许已有其他程序在监听。</translation>
    </message>
</context>
<context>
    <name>NearestName</name>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>；您是指 &quot;%1&quot; 吗？</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Desktop notifications</source>
        <translation>桌面通知</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Webhook</source>
        <translation>Webhook</translation>
    </message>
    <message>
        <source>upsdesk: a trial</source>
        <translation>upsdesk：试验</translation>
    </message>
    <message>
        <source>Notifications arrive here.</source>
        <translation>通知会到达这里。</translation>
    </message>
</context>
<context>
    <name>NotifyTests</name>
    <message>
        <source>Test desktop</source>
        <translation>测试桌面</translation>
    </message>
    <message>
        <source>Test command</source>
        <translation>测试命令</translation>
    </message>
    <message>
        <source>Test webhook</source>
        <translation>测试 Webhook</translation>
    </message>
    <message>
        <source>%1: it is not set up.</source>
        <translation>%1：未设置。</translation>
    </message>
    <message>
        <source>%1: the trial was delivered.</source>
        <translation>%1：试验已送达。</translation>
    </message>
    <message>
        <source>%1: trying ...</source>
        <translation>%1：正在尝试 ...</translation>
    </message>
</context>
<context>
    <name>NutDevices</name>
    <message>
        <source>The server has no UPS.</source>
        <translation>服务器没有 UPS。</translation>
    </message>
    <message>
        <source>The server has several devices; put the name of one at the end of the address: %1.</source>
        <translation>服务器有多台设备；请将其中一台的名称写在地址末尾：%1。</translation>
    </message>
</context>
<context>
    <name>NutFields</name>
    <message>
        <source>&amp;List</source>
        <translation>列出(&amp;L)</translation>
    </message>
    <message>
        <source>the only one of the server</source>
        <translation>服务器上唯一的一台</translation>
    </message>
    <message>
        <source>Asks the server which UPSes it has</source>
        <translation>询问服务器有哪些 UPS</translation>
    </message>
    <message>
        <source>for commands only</source>
        <translation>仅用于命令</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>主机(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;UPS</source>
        <translation>UPS(&amp;U)</translation>
    </message>
    <message>
        <source>U&amp;ser</source>
        <translation>用户(&amp;S)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Enter the user that the password is for.</source>
        <translation>请输入密码所属的用户。</translation>
    </message>
    <message>
        <source>Asking %1 …</source>
        <translation>正在询问 %1 …</translation>
    </message>
    <message>
        <source>The server has no UPS.</source>
        <translation>服务器没有 UPS。</translation>
    </message>
    <message>
        <source>The server&apos;s UPSes: %1.</source>
        <translation>服务器的 UPS：%1。</translation>
    </message>
</context>
<context>
    <name>NutLine</name>
    <message>
        <source>The password is not sent to %1, because the link is %2 Give the device the server&apos;s certificate (fingerprint) or its authority (ca-file), or allow plain text with tls = off.</source>
        <translation>密码未发送到 %1，因为链路%2 请为设备指定服务器的证书 (fingerprint) 或其颁发机构 (ca-file)，或用 tls = off 允许明文。</translation>
    </message>
    <message>
        <source>not trusted: %1</source>
        <translation>不可信：%1</translation>
    </message>
    <message>
        <source>in plain text.</source>
        <translation>是明文。</translation>
    </message>
    <message>
        <source>%1 does not answer; check that the server is on and that no firewall is in between.</source>
        <translation>%1 没有应答；请检查服务器是否开启，中间是否有防火墙。</translation>
    </message>
    <message>
        <source>%1 went on in plain text after it had offered encryption: somebody may be in between.</source>
        <translation>%1 在提供加密之后仍以明文继续：中间可能有人。</translation>
    </message>
    <message>
        <source>%1 offers no encryption, and the configuration requires it (tls = required, or a certificate to trust).</source>
        <translation>%1 不提供加密，而配置要求加密 (tls = required，或需信任的证书)。</translation>
    </message>
    <message>
        <source>%1 has offered encryption before and offers none now: somebody may be in between. If the server was changed on purpose, set tls = off.</source>
        <translation>%1 以前提供加密，现在不提供：中间可能有人。如果服务器是有意更改的，请设置 tls = off。</translation>
    </message>
    <message>
        <source>there is no certificate to be read in %1.</source>
        <translation>在 %1 中没有可读取的证书。</translation>
    </message>
    <message>
        <source>%1 cannot be trusted: %2 Its certificate is %3.</source>
        <translation>无法信任 %1：%2 其证书是 %3。</translation>
    </message>
    <message>
        <source>%1 offers encryption, but the two sides cannot agree on it; check the certificate of the server.</source>
        <translation>%1 提供加密，但双方无法达成一致；请检查服务器的证书。</translation>
    </message>
    <message>
        <source>%1 offers encryption, but this machine has no TLS library.</source>
        <translation>%1 提供加密，但本机没有 TLS 库。</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1 关闭了连接。</translation>
    </message>
    <message>
        <source>%1 refuses the connection: no NUT server runs there, or it does not listen on this address.</source>
        <translation>%1 拒绝连接：那里没有运行 NUT 服务器，或它不在此地址监听。</translation>
    </message>
    <message>
        <source>No connection to %1: too many open files.</source>
        <translation>无法连接 %1：打开的文件过多。</translation>
    </message>
    <message>
        <source>No connection to %1: %2.</source>
        <translation>无法连接 %1：%2。</translation>
    </message>
    <message>
        <source>No name server answered for %1 in time; check the network.</source>
        <translation>没有域名服务器及时应答 %1；请检查网络。</translation>
    </message>
    <message>
        <source>%1 accepts the connection but does not answer.</source>
        <translation>%1 接受连接但不应答。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>NutOrder</name>
    <message>
        <source>Commands need an account of the server; add its user and password in the configuration. Nothing was sent.</source>
        <translation>命令需要服务器的账户；请在配置中加入其用户和密码。未发送任何内容。</translation>
    </message>
    <message>
        <source>This UPS offers no such command; looked for %1.</source>
        <translation>此 UPS 不提供该命令；查找的是 %1。</translation>
    </message>
    <message>
        <source>%1 Look at the readings before sending it again.</source>
        <translation>%1 再次发送之前请先查看读数。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 Whether %2 was carried out is not known; it is not sent again.</source>
        <translation>%1 不知道 %2 是否已执行；不会再次发送。</translation>
    </message>
    <message>
        <source>The connection broke before the server told how %1 ended.</source>
        <translation>连接在服务器告知 %1 的结果之前中断。</translation>
    </message>
    <message>
        <source>The server took %1 but did not tell how it ended.</source>
        <translation>服务器接受了 %1，但未告知其结果。</translation>
    </message>
    <message>
        <source>The server has handed %1 on to its driver, but cannot tell how it ended; look at the readings.</source>
        <translation>服务器已将 %1 交给驱动程序，但无法告知其结果；请查看读数。</translation>
    </message>
    <message>
        <source>%1 was carried out; the minutes of standby cannot be set on this UPS, it comes back as its own settings say.</source>
        <translation>%1 已执行；此 UPS 无法设置待机分钟数，将按其自身设置恢复。</translation>
    </message>
    <message>
        <source>%1 was carried out.</source>
        <translation>%1 已执行。</translation>
    </message>
    <message>
        <source>%1 %2 was not sent.</source>
        <translation>%1 %2 未发送。</translation>
    </message>
    <message>
        <source>%1 Nothing was sent.</source>
        <translation>%1 未发送任何内容。</translation>
    </message>
</context>
<context>
    <name>NutPoll</name>
    <message>
        <source>The link to the server is in plain text: others on the network can read and change what it says.</source>
        <translation>与服务器的链路是明文：网络上的其他人可以读取并更改其内容。</translation>
    </message>
    <message>
        <source>The link to the server is encrypted, but not trusted: %1</source>
        <translation>与服务器的链路已加密，但不可信：%1</translation>
    </message>
</context>
<context>
    <name>NutProtocol</name>
    <message>
        <source>The server answers, but its driver has brought no new data for a while; check the cable between server and UPS.</source>
        <translation>服务器有应答，但其驱动程序已有一段时间没有新数据；请检查服务器与 UPS 之间的电缆。</translation>
    </message>
    <message>
        <source>The server answers, but the driver of this UPS is not running; start it on the server.</source>
        <translation>服务器有应答，但此 UPS 的驱动程序没有运行；请在服务器上启动它。</translation>
    </message>
    <message>
        <source>The server denies access: wrong password or too few rights. Check user and password in the configuration, and the user&apos;s actions and instcmds in upsd.users on the server.</source>
        <translation>服务器拒绝访问：密码错误或权限不足。请检查配置中的用户和密码，以及服务器上 upsd.users 中该用户的 actions 和 instcmds。</translation>
    </message>
    <message>
        <source>The server knows no UPS of this name; compare the address with the server&apos;s list of devices.</source>
        <translation>服务器不认识该名称的 UPS；请将地址与服务器的设备列表比较。</translation>
    </message>
    <message>
        <source>The server wants a user and a password; add them in the configuration.</source>
        <translation>服务器需要用户和密码；请加入配置。</translation>
    </message>
    <message>
        <source>The server wants a password; add it in the configuration.</source>
        <translation>服务器需要密码；请加入配置。</translation>
    </message>
    <message>
        <source>The server does not accept the user; correct it in the configuration.</source>
        <translation>服务器不接受该用户；请在配置中改正。</translation>
    </message>
    <message>
        <source>The server does not accept the password; correct it in the configuration.</source>
        <translation>服务器不接受该密码；请在配置中改正。</translation>
    </message>
    <message>
        <source>The UPS does not support this command.</source>
        <translation>UPS 不支持此命令。</translation>
    </message>
    <message>
        <source>The UPS does not have this setting.</source>
        <translation>UPS 没有此设置。</translation>
    </message>
    <message>
        <source>The UPS does not let this setting be changed.</source>
        <translation>UPS 不允许更改此设置。</translation>
    </message>
    <message>
        <source>The value is too long for this setting.</source>
        <translation>该值对此设置而言太长。</translation>
    </message>
    <message>
        <source>The UPS does not accept this value.</source>
        <translation>UPS 不接受此值。</translation>
    </message>
    <message>
        <source>The server or its driver does not accept the request.</source>
        <translation>服务器或其驱动程序不接受该请求。</translation>
    </message>
    <message>
        <source>The server could not hand the command to its driver.</source>
        <translation>服务器无法将命令交给驱动程序。</translation>
    </message>
    <message>
        <source>The server could not hand the setting to its driver.</source>
        <translation>服务器无法将设置交给驱动程序。</translation>
    </message>
    <message>
        <source>The UPS or its driver reports that it failed.</source>
        <translation>UPS 或其驱动程序报告失败。</translation>
    </message>
    <message>
        <source>The driver of this UPS does not know this command or setting.</source>
        <translation>此 UPS 的驱动程序不认识此命令或设置。</translation>
    </message>
    <message>
        <source>What %1 answers is not the language of a NUT server; check host and port.</source>
        <translation>%1 的应答不是 NUT 服务器的语言；请检查主机和端口。</translation>
    </message>
    <message>
        <source>The server refuses the request without saying why.</source>
        <translation>服务器拒绝请求，未说明原因。</translation>
    </message>
    <message>
        <source>The server refuses the request: %1.</source>
        <translation>服务器拒绝请求：%1。</translation>
    </message>
</context>
<context>
    <name>NutReading</name>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>current</source>
        <translation>电流</translation>
    </message>
    <message>
        <source>power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>%1 voltages are line to line.</source>
        <translation>%1电压为线电压。</translation>
    </message>
    <message>
        <source>%1: one value for all lines (%2), shown in the first.</source>
        <translation>%1：各相共用一个值（%2），显示在第一相。</translation>
    </message>
    <message>
        <source>Battery depleted: derived from a charge of 0 %.</source>
        <translation>电池耗尽：由电量 0 % 推出。</translation>
    </message>
    <message>
        <source>The driver has just started and has no data yet; the source of power is unknown.</source>
        <translation>驱动程序刚刚启动，尚无数据；供电来源未知。</translation>
    </message>
    <message>
        <source>The UPS does not say where its power comes from.</source>
        <translation>UPS 未说明其电源来自何处。</translation>
    </message>
    <message>
        <source>Humidity %1</source>
        <translation>湿度 %1</translation>
    </message>
</context>
<context>
    <name>NutTrust</name>
    <message>
        <source>%1 port %2</source>
        <translation>%1 端口 %2</translation>
    </message>
    <message>
        <source>the certificate is not the one that the configuration names.</source>
        <translation>该证书不是配置所指定的证书。</translation>
    </message>
    <message>
        <source>the server shows no certificate.</source>
        <translation>服务器没有出示证书。</translation>
    </message>
</context>
<context>
    <name>NutTrustFields</name>
    <message>
        <source>Where the server offers it; commands only when trusted</source>
        <translation>服务器提供时；仅可信时才可下命令</translation>
    </message>
    <message>
        <source>Always, and trusted</source>
        <translation>始终，且须可信</translation>
    </message>
    <message>
        <source>Off: passwords go in plain text</source>
        <translation>关闭：密码以明文传送</translation>
    </message>
    <message>
        <source>P&amp;in it</source>
        <translation>固定(&amp;I)</translation>
    </message>
    <message>
        <source>those of the system; or a PEM file</source>
        <translation>系统的颁发机构；或 PEM 文件</translation>
    </message>
    <message>
        <source>none pinned; the connection test shows it</source>
        <translation>未固定；连接测试会显示</translation>
    </message>
    <message>
        <source>Trust this certificate, and no other, from now on</source>
        <translation>从现在起信任此证书，且不信任其他证书</translation>
    </message>
    <message>
        <source>&amp;Encryption</source>
        <translation>加密(&amp;E)</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>颁发机构</translation>
    </message>
    <message>
        <source>&amp;Fingerprint</source>
        <translation>指纹(&amp;F)</translation>
    </message>
    <message>
        <source>The file of authorities cannot be read: %1.</source>
        <translation>无法读取颁发机构文件：%1。</translation>
    </message>
    <message>
        <source>A fingerprint is sha256: and 64 hexadecimal digits.</source>
        <translation>指纹为 sha256: 加 64 位十六进制数字。</translation>
    </message>
    <message>
        <source>%1, trusted</source>
        <translation>%1，可信</translation>
    </message>
    <message>
        <source>%1, not trusted</source>
        <translation>%1，不可信</translation>
    </message>
</context>
<context>
    <name>OperatorBar</name>
    <message>
        <source>%1, level %2</source>
        <translation>%1，级别 %2</translation>
    </message>
    <message>
        <source>Nobody is logged in</source>
        <translation>无人登录</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>注销</translation>
    </message>
    <message>
        <source>Log in</source>
        <translation>登录</translation>
    </message>
</context>
<context>
    <name>OperatorDesk</name>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>There is no operator of the name that was given.</source>
        <translation>没有所给名称的操作员。</translation>
    </message>
    <message>
        <source>The password was wrong.</source>
        <translation>密码错误。</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>OperatorDialog</name>
    <message>
        <source>Add an operator</source>
        <translation>添加操作员</translation>
    </message>
    <message>
        <source>Operator %1</source>
        <translation>操作员 %1</translation>
    </message>
    <message>
        <source>0 may look; 1 and above may command and change the desk</source>
        <translation>0 可以查看；1 及以上可以下命令并更改本台</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Level (0 looks, from 1 on commands)</source>
        <translation>级别（0 查看，1 起可下命令）(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>再输一次(&amp;M)</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>There is an operator &quot;%1&quot; already.</source>
        <translation>已有操作员 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The two passwords differ.</source>
        <translation>两次密码不同。</translation>
    </message>
    <message>
        <source>There is not enough memory to hash the password.</source>
        <translation>内存不足，无法对密码做散列。</translation>
    </message>
    <message>
        <source>Hashing the password …</source>
        <translation>正在对密码做散列 …</translation>
    </message>
</context>
<context>
    <name>OperatorEdits</name>
    <message>
        <source>one operator of level %1 or above must remain, or nobody could change the desk any more</source>
        <translation>必须保留一名级别 %1 或以上的操作员，否则再无人能更改本台</translation>
    </message>
    <message>
        <source>a level lies between %1 and %2</source>
        <translation>级别在 %1 和 %2 之间</translation>
    </message>
    <message>
        <source>a password has at least %1 characters</source>
        <translation>密码至少有 %1 个字符</translation>
    </message>
</context>
<context>
    <name>OperatorSession</name>
    <message>
        <source>%1 may look, but not change: that takes level %2.</source>
        <translation>%1 可以查看，但不能更改：需要级别 %2。</translation>
    </message>
    <message>
        <source>Log in first: devices and settings are changed by operators.</source>
        <translation>请先登录：设备和设置由操作员更改。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Try again in %1 s.</source>
        <translation>失败次数过多。请在 %1 秒后重试。</translation>
    </message>
    <message>
        <source>Name or password is wrong.</source>
        <translation>名称或密码错误。</translation>
    </message>
</context>
<context>
    <name>OperatorsPage</name>
    <message>
        <source>&amp;Change…</source>
        <translation>更改(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>移除(&amp;R)…</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>While there is no operator, everybody may change the desk and nobody may command a real UPS. Changes here are kept at once.</source>
        <translation>没有操作员时，任何人都可更改本台，而无人可对真实的 UPS 下命令。此处的更改立即保存。</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>Operator %1 added, level %2</source>
        <translation>已添加操作员 %1，级别 %2</translation>
    </message>
    <message>
        <source>Operator %1 changed, level %2</source>
        <translation>已更改操作员 %1，级别 %2</translation>
    </message>
    <message>
        <source>Remove an operator</source>
        <translation>移除操作员</translation>
    </message>
    <message>
        <source>Remove the operator &quot;%1&quot;?</source>
        <translation>移除操作员 &quot;%1&quot; 吗？</translation>
    </message>
    <message>
        <source>Who is logged in by this name is logged out.</source>
        <translation>以此名称登录的人将被注销。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Operator %1 removed</source>
        <translation>已移除操作员 %1</translation>
    </message>
</context>
<context>
    <name>OutageTable</name>
    <message>
        <source>Outages</source>
        <translation>停电</translation>
    </message>
    <message>
        <source>Double-click or Enter shows the outage in the charts.</source>
        <translation>双击或按回车可在图表中显示该次停电。</translation>
    </message>
    <message>
        <source>Mains lost</source>
        <translation>市电中断</translation>
    </message>
    <message>
        <source>Mains back</source>
        <translation>市电恢复</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Lowest charge</source>
        <translation>最低电量</translation>
    </message>
    <message>
        <source>still on battery</source>
        <translation>仍由电池供电</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>没有与“%1”匹配的内容。</translation>
    </message>
</context>
<context>
    <name>PostgresStore</name>
    <message>
        <source>%1 does not let this user in; look at the password</source>
        <translation>%1 不允许该用户登录；请检查密码</translation>
    </message>
    <message>
        <source>%1: there is no such database; create it</source>
        <translation>%1：没有该数据库；请创建</translation>
    </message>
    <message>
        <source>%1: the user may not do this; look at its rights</source>
        <translation>%1：该用户无权这样做；请检查其权限</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 是只读的</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 的磁盘已满</translation>
    </message>
    <message>
        <source>%1 has too many connections</source>
        <translation>%1 的连接过多</translation>
    </message>
    <message>
        <source>%1: a table is locked by another program</source>
        <translation>%1：某个表被其他程序锁定</translation>
    </message>
    <message>
        <source>%1 is shutting down or starting up</source>
        <translation>%1 正在关闭或启动</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有应答</translation>
    </message>
</context>
<context>
    <name>PrivateFile</name>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 不是文件</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is longer than %2 bytes; it is not read</source>
        <translation>%1 超过 %2 字节；不予读取</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>%1 is not written: another upsdesk is writing it, or its folder is read-only</source>
        <translation>%1 未写入：另一个 upsdesk 正在写入，或其文件夹是只读的</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>Recording ended</source>
        <translation>记录结束</translation>
    </message>
    <message>
        <source>Recording began</source>
        <translation>记录开始</translation>
    </message>
    <message>
        <source>Ended while nothing was recorded.</source>
        <translation>在未做记录期间结束。</translation>
    </message>
    <message>
        <source>Ended while the device could not be reached.</source>
        <translation>在设备无法连接期间结束。</translation>
    </message>
    <message>
        <source>The device is no longer watched.</source>
        <translation>该设备已不再监视。</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set forward by %1 s</source>
        <translation>本台的时钟被拨快 %1 s</translation>
    </message>
    <message>
        <source>The desk&apos;s clock was set back by %1 s</source>
        <translation>本台的时钟被拨慢 %1 s</translation>
    </message>
</context>
<context>
    <name>RelayConnector</name>
    <message>
        <source>This desk is a viewer: it polls nothing, the collector of %1 does.</source>
        <translation>本台是查看器：它不轮询，由 %1 的采集器轮询。</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>此设备</translation>
    </message>
    <message>
        <source>This desk is a viewer and has no way to the device: commands are given at a desk that polls it itself.</source>
        <translation>本台是查看器，没有通往设备的途径：请在自行轮询该设备的台上下命令。</translation>
    </message>
</context>
<context>
    <name>ReplayBar</name>
    <message>
        <source>Back to &amp;live</source>
        <translation>回到实时(&amp;L)</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>正在读取 …</translation>
    </message>
    <message>
        <source>REPLAY</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>To the reading before</source>
        <translation>到前一个读数</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>To the next reading</source>
        <translation>到后一个读数</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>回放：%1</translation>
    </message>
    <message>
        <source>stored since %1</source>
        <translation>存储自 %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
</context>
<context>
    <name>ReplayDevice</name>
    <message>
        <source>It was recorded like this.</source>
        <translation>记录时就是这样。</translation>
    </message>
    <message>
        <source>The past takes no commands.</source>
        <translation>过去不接受命令。</translation>
    </message>
</context>
<context>
    <name>ReplayPage</name>
    <message>
        <source>This is a replay: the past takes no commands. Go back to live.</source>
        <translation>这是回放：过去不接受命令。请回到实时。</translation>
    </message>
</context>
<context>
    <name>ReplayPlayer</name>
    <message>
        <source>This desk keeps no history.</source>
        <translation>本台不保存历史。</translation>
    </message>
    <message>
        <source>Nothing is stored of %1 yet.</source>
        <translation>尚无 %1 的存储数据。</translation>
    </message>
</context>
<context>
    <name>ResultBanner</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ScaleTable</name>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>系数</translation>
    </message>
    <message>
        <source>Correction factors</source>
        <translation>修正系数</translation>
    </message>
    <message>
        <source>The factor of %1 is a number above 0, as 0.1.</source>
        <translation>%1 的系数是大于 0 的数，如 0.1。</translation>
    </message>
</context>
<context>
    <name>ScenarioPlayer</name>
    <message>
        <source>Simulated day, %1x</source>
        <translation>模拟的一天，%1x</translation>
    </message>
    <message>
        <source>Simulated day, %1x: the battery lives so much faster; what is ordered takes its own time.</source>
        <translation>模拟的一天，%1x：电池以同样的倍数加快；所下的命令按其自身的时间执行。</translation>
    </message>
</context>
<context>
    <name>SecretEdit</name>
    <message>
        <source>kept</source>
        <translation>保留</translation>
    </message>
</context>
<context>
    <name>SecretKeeper</name>
    <message>
        <source>A secret was not kept: %1</source>
        <translation>有机密信息未能保存：%1</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>&amp;General</source>
        <translation>常规(&amp;G)</translation>
    </message>
    <message>
        <source>A device may have an interval of its own; its dialog says which.</source>
        <translation>设备可以有自己的间隔；见其对话框。</translation>
    </message>
    <message>
        <source>&amp;Thresholds</source>
        <translation>阈值(&amp;T)</translation>
    </message>
    <message>
        <source>From here on a live device is conspicuous in list, tiles and heading. Its own alarms count whatever stands here.</source>
        <translation>自此起，实时设备在列表、磁贴和标题中醒目显示。无论此处如何设置，设备自身的告警都有效。</translation>
    </message>
    <message>
        <source>&amp;Secrets</source>
        <translation>机密信息(&amp;S)</translation>
    </message>
    <message>
        <source>Passwords and keys of devices. Where another place is chosen, those that the desk knows move there. The file is not encrypted: this user and the administrator of this machine can read it.</source>
        <translation>设备的密码和密钥。选择其他位置时，本台已知的机密信息会移到那里。该文件未加密：此用户和本机的管理员可以读取。</translation>
    </message>
    <message>
        <source>Histor&amp;y</source>
        <translation>历史(&amp;Y)</translation>
    </message>
    <message>
        <source>In a file of yours, or where it says: sqlite:/PATH or postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and checked against the authorities in that file, or those of the system. Followed from the next start on.</source>
        <translation>保存在您的一个文件中，或在所写之处：sqlite:/PATH 或 postgresql://USER@HOST/DATABASE，后者按所选方式加密，并按该文件中的或系统的颁发机构核对。自下次启动起生效。</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>通知(&amp;N)</translation>
    </message>
    <message>
        <source>Power failures are told at once, anything else after it has held for one more poll. In quiet hours the desktop is told only what is critical. The command is a program with its arguments; what happened is in its environment (UPSDESK_TEXT and others). Metrics are served at a port of this machine, or at an address like 127.0.0.1:9199.</source>
        <translation>停电立即告知，其他情况在再一次轮询后仍存在时告知。静默时段内只向桌面告知危急情况。命令是带参数的程序；所发生的情况在其环境变量中（UPSDESK_TEXT 等）。指标在本机的一个端口提供，或在形如 127.0.0.1:9199 的地址提供。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>操作员(&amp;O)</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>设置：%1</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>&amp;Worst first</source>
        <translation>最严重的在前(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;All devices</source>
        <translation>所有设备(&amp;A)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter by name, address or state</source>
        <translation>按名称、地址或状态筛选</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>SimulatedUps</name>
    <message>
        <source>The battery is being tested for %1 s</source>
        <translation>正在测试电池，%1 秒</translation>
    </message>
    <message>
        <source>The battery is being discharged until it is low</source>
        <translation>电池正在放电，直到电量低</translation>
    </message>
    <message>
        <source>The test has ended</source>
        <translation>测试已结束</translation>
    </message>
    <message>
        <source>The output goes off in %1 s</source>
        <translation>输出将在 %1 秒后关闭</translation>
    </message>
    <message>
        <source>The output goes off in %1 s, for %2 min</source>
        <translation>输出将在 %1 秒后关闭，持续 %2 分钟</translation>
    </message>
    <message>
        <source>The output is off for %1 s</source>
        <translation>输出已关闭，持续 %1 秒</translation>
    </message>
    <message>
        <source>The output is on</source>
        <translation>输出已开启</translation>
    </message>
    <message>
        <source>This unit does not know the command</source>
        <translation>此设备不认识该命令</translation>
    </message>
    <message>
        <source>The delay is out of range</source>
        <translation>延时超出范围</translation>
    </message>
    <message>
        <source>The time of standby is out of range</source>
        <translation>待机时间超出范围</translation>
    </message>
    <message>
        <source>The duration is out of range</source>
        <translation>持续时间超出范围</translation>
    </message>
    <message>
        <source>No test is running</source>
        <translation>没有测试在运行</translation>
    </message>
    <message>
        <source>The output is on already</source>
        <translation>输出已经开启</translation>
    </message>
    <message>
        <source>There are no mains and the battery is low</source>
        <translation>没有市电，且电池电量低</translation>
    </message>
    <message>
        <source>The output is off already</source>
        <translation>输出已经关闭</translation>
    </message>
    <message>
        <source>A shutdown is under way already</source>
        <translation>关机已在进行中</translation>
    </message>
    <message>
        <source>The output is off</source>
        <translation>输出已关闭</translation>
    </message>
    <message>
        <source>A test is running already</source>
        <translation>测试已在进行中</translation>
    </message>
    <message>
        <source>The battery carries the load</source>
        <translation>由电池带负载</translation>
    </message>
    <message>
        <source>The load is on bypass</source>
        <translation>负载由旁路供电</translation>
    </message>
    <message>
        <source>A shutdown is under way</source>
        <translation>关机进行中</translation>
    </message>
    <message>
        <source>The output is overloaded</source>
        <translation>输出过载</translation>
    </message>
    <message>
        <source>The battery is not charged enough</source>
        <translation>电池电量不足</translation>
    </message>
</context>
<context>
    <name>SimulatorConnector</name>
    <message>
        <source>The simulator answers, the simulated UPS behind it is silent</source>
        <translation>模拟器有应答，其后的模拟 UPS 没有声息</translation>
    </message>
    <message>
        <source>The simulated UPS does not answer</source>
        <translation>模拟 UPS 没有应答</translation>
    </message>
</context>
<context>
    <name>SimulatorFields</name>
    <message>
        <source>Scena&amp;rio</source>
        <translation>场景(&amp;R)</translation>
    </message>
    <message>
        <source>The simulator has no such scenario; choose one.</source>
        <translation>模拟器没有该场景；请选择一个。</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>模拟器</translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <translation>模拟器 %1</translation>
    </message>
</context>
<context>
    <name>SimulatorScenarios</name>
    <message>
        <source>simulated day, 60x</source>
        <translation>模拟的一天，60x</translation>
    </message>
    <message>
        <source>mains supply, battery full</source>
        <translation>市电供电，电池充满</translation>
    </message>
    <message>
        <source>mains failure, the battery carries the load</source>
        <translation>市电故障，由电池带负载</translation>
    </message>
    <message>
        <source>mains failure, battery low and soon empty</source>
        <translation>市电故障，电池电量低，即将耗尽</translation>
    </message>
    <message>
        <source>mains are back, the battery recharges</source>
        <translation>市电恢复，电池正在充电</translation>
    </message>
    <message>
        <source>the load is on bypass</source>
        <translation>负载由旁路供电</translation>
    </message>
    <message>
        <source>too much load, then transfer to bypass</source>
        <translation>负载过大，随后转旁路</translation>
    </message>
    <message>
        <source>battery self-test, repeated</source>
        <translation>电池自检，反复进行</translation>
    </message>
    <message>
        <source>answers at first, then falls silent for a while</source>
        <translation>起初有应答，随后静默一段时间</translation>
    </message>
    <message>
        <source>the link comes and goes</source>
        <translation>链路时通时断</translation>
    </message>
    <message>
        <source>Single-phase UPS: %1</source>
        <translation>单相 UPS：%1</translation>
    </message>
    <message>
        <source>Three-phase UPS: %1</source>
        <translation>三相 UPS：%1</translation>
    </message>
    <message>
        <source>Unknown scenario &quot;%1&quot;; known are %2, and sim: alone for the whole day%3</source>
        <translation>未知场景 &quot;%1&quot;；已知的有 %2，单独的 sim: 表示完整的一天%3</translation>
    </message>
</context>
<context>
    <name>SnmpCommand</name>
    <message>
        <source>The agent does not answer; nothing was set.</source>
        <translation>代理没有应答；未做任何设置。</translation>
    </message>
    <message>
        <source>%1. The command was sent before; look at the readings before sending it again.</source>
        <translation>%1。命令此前已发送；再次发送之前请先查看读数。</translation>
    </message>
    <message>
        <source>The agent fell silent after the command was sent; it is not known whether the device carried it out. It was not sent again.</source>
        <translation>命令发送后代理不再应答；不知道设备是否已执行。未再次发送。</translation>
    </message>
    <message>
        <source>A test is already in progress.</source>
        <translation>测试已在进行中。</translation>
    </message>
    <message>
        <source>No test is in progress.</source>
        <translation>没有测试在进行。</translation>
    </message>
    <message>
        <source>The device has no test objects.</source>
        <translation>设备没有测试对象。</translation>
    </message>
    <message>
        <source>The shutdown delay of %1 s is not shorter than the standby.</source>
        <translation>关机延时 %1 s 不短于待机时间。</translation>
    </message>
    <message>
        <source>The device has no object for this command (%1).</source>
        <translation>设备没有此命令的对象 (%1)。</translation>
    </message>
    <message>
        <source>No answer to the first step of the command; the shutdown was not sent.</source>
        <translation>命令的第一步没有应答；关机命令未发送。</translation>
    </message>
    <message>
        <source>No answer to the command, and the device shows no effect of it. It was not sent again.</source>
        <translation>命令没有应答，设备也没有显示其效果。未再次发送。</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was on before: nothing shows whether the device followed it.</source>
        <translation>代理接受了命令，但输出此前已开启：无从得知设备是否执行。</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the output was off before: nothing shows whether the device followed it.</source>
        <translation>代理接受了命令，但输出此前已关闭：无从得知设备是否执行。</translation>
    </message>
    <message>
        <source>The agent accepted the command, but the device shows no effect of it.</source>
        <translation>代理接受了命令，但设备没有显示其效果。</translation>
    </message>
    <message>
        <source>The test has ended.</source>
        <translation>测试已结束。</translation>
    </message>
    <message>
        <source>The test has begun.</source>
        <translation>测试已开始。</translation>
    </message>
    <message>
        <source>The test has ended. %1</source>
        <translation>测试已结束。%1</translation>
    </message>
    <message>
        <source>The test failed. %1</source>
        <translation>测试失败。%1</translation>
    </message>
    <message>
        <source>The test was aborted. %1</source>
        <translation>测试已中止。%1</translation>
    </message>
    <message>
        <source>The output is on.</source>
        <translation>输出已开启。</translation>
    </message>
    <message>
        <source>The output is off.</source>
        <translation>输出已关闭。</translation>
    </message>
    <message>
        <source>The countdown is running, %1 s left.</source>
        <translation>倒计时进行中，还有 %1 s。</translation>
    </message>
    <message>
        <source>The device does not offer this command (%1 cannot be set).</source>
        <translation>设备不提供此命令（%1 无法设置）。</translation>
    </message>
    <message>
        <source>The agent does not let %1 be set: the %2 needs write access.</source>
        <translation>代理不允许设置 %1：%2需要写权限。</translation>
    </message>
    <message>
        <source>The device does not accept the value for %1.</source>
        <translation>设备不接受 %1 的值。</translation>
    </message>
    <message>
        <source>The device cannot do this now (SNMP error %1 at %2).</source>
        <translation>设备现在无法这样做（SNMP 错误 %1，位于 %2）。</translation>
    </message>
</context>
<context>
    <name>SnmpFields</name>
    <message>
        <source>No authentication, no encryption</source>
        <translation>无认证，无加密</translation>
    </message>
    <message>
        <source>Authentication, no encryption</source>
        <translation>有认证，无加密</translation>
    </message>
    <message>
        <source>Authentication and encryption</source>
        <translation>有认证和加密</translation>
    </message>
    <message>
        <source>the agent&apos;s own</source>
        <translation>代理自身的</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>主机(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>版本(&amp;V)</translation>
    </message>
    <message>
        <source>Comm&amp;unity</source>
        <translation>团体名(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>用户(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Security</source>
        <translation>安全级别(&amp;S)</translation>
    </message>
    <message>
        <source>Authent&amp;ication</source>
        <translation>认证(&amp;I)</translation>
    </message>
    <message>
        <source>Authentication secret</source>
        <translation>认证密钥</translation>
    </message>
    <message>
        <source>Encr&amp;yption</source>
        <translation>加密(&amp;Y)</translation>
    </message>
    <message>
        <source>Encryption secret</source>
        <translation>加密密钥</translation>
    </message>
    <message>
        <source>Conte&amp;xt</source>
        <translation>上下文(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>范围(&amp;R)</translation>
    </message>
    <message>
        <source>Enter the user of SNMPv3.</source>
        <translation>请输入 SNMPv3 的用户。</translation>
    </message>
    <message>
        <source>A secret of SNMPv3 has at least %1 characters.</source>
        <translation>SNMPv3 的密钥至少有 %1 个字符。</translation>
    </message>
</context>
<context>
    <name>SnmpPeer</name>
    <message>
        <source>The name server does not answer for %1</source>
        <translation>域名服务器对 %1 没有应答</translation>
    </message>
    <message>
        <source>user &quot;%1&quot;</source>
        <translation>用户 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>community</source>
        <translation>团体名</translation>
    </message>
</context>
<context>
    <name>SnmpPoll</name>
    <message>
        <source>not a UPS: %1 answers SNMP but has no UPS-MIB objects</source>
        <translation>不是 UPS：%1 应答 SNMP，但没有 UPS-MIB 对象</translation>
    </message>
    <message>
        <source>The agent at %1 answers, but has lost contact with its UPS; what it repeats is not taken for new.</source>
        <translation>%1 的代理有应答，但已与其 UPS 失去联系；其重复的内容不视为新数据。</translation>
    </message>
    <message>
        <source>%1 stopped answering, or answers too slowly: a poll did not end within %2 s</source>
        <translation>%1 不再应答，或应答太慢：一次轮询未能在 %2 s 内结束</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong user or context, an agent without SNMPv3, or nothing at %2</source>
        <translation>静默 %1 s：用户或上下文错误、代理不支持 SNMPv3，或 %2 处没有设备</translation>
    </message>
    <message>
        <source>Silent for %1 s: wrong community, an agent without this SNMP version, or nothing at %2</source>
        <translation>静默 %1 s：团体名错误、代理不支持此 SNMP 版本，或 %2 处没有设备</translation>
    </message>
</context>
<context>
    <name>SnmpPort</name>
    <message>
        <source>upsdesk has as many files open as this computer allows it (%1; see &quot;ulimit -n&quot;)</source>
        <translation>upsdesk 打开的文件已达本机上限（%1；见 &quot;ulimit -n&quot;）</translation>
    </message>
</context>
<context>
    <name>SnmpReading</name>
    <message>
        <source>Alarms counted, but not named: %1</source>
        <translation>告警有计数但无名称：%1</translation>
    </message>
</context>
<context>
    <name>SnmpSession</name>
    <message>
        <source>No SNMP session to %1: %2</source>
        <translation>与 %1 没有 SNMP 会话：%2</translation>
    </message>
    <message>
        <source>Cannot send to %1: %2</source>
        <translation>无法发送到 %1：%2</translation>
    </message>
    <message>
        <source>The request cannot be made: %1</source>
        <translation>无法构造请求：%1</translation>
    </message>
    <message>
        <source>Wrong authentication secret or protocol: %1 refuses the digest of user &quot;%2&quot;</source>
        <translation>认证密钥或协议错误：%1 拒绝用户 &quot;%2&quot; 的摘要</translation>
    </message>
    <message>
        <source>Unknown user &quot;%1&quot; at %2</source>
        <translation>%2 处未知用户 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 does not allow user &quot;%2&quot; the level %3</source>
        <translation>%1 不允许用户 &quot;%2&quot; 使用级别 %3</translation>
    </message>
    <message>
        <source>Wrong privacy secret or protocol: %1 cannot decrypt what user &quot;%2&quot; sends</source>
        <translation>加密密钥或协议错误：%1 无法解密用户 &quot;%2&quot; 所发送的内容</translation>
    </message>
    <message>
        <source>%1 refuses the SNMPv3 message: %2</source>
        <translation>%1 拒绝 SNMPv3 消息：%2</translation>
    </message>
    <message>
        <source>%1 answers, but not what user &quot;%2&quot; sends: wrong privacy secret or protocol, or unknown context</source>
        <translation>%1 有应答，但不应答用户 &quot;%2&quot; 所发送的内容：加密密钥或协议错误，或上下文未知</translation>
    </message>
</context>
<context>
    <name>SnmpUsers</name>
    <message>
        <source>SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.</source>
        <translation>SNMPv3 的密钥至少有 %1 个字符；%2密钥太短或缺失。</translation>
    </message>
    <message>
        <source>authentication</source>
        <translation>认证</translation>
    </message>
    <message>
        <source>privacy</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no authentication with &quot;%1&quot;.</source>
        <translation>本机的 SNMP 库没有使用 &quot;%1&quot; 的认证。</translation>
    </message>
    <message>
        <source>The SNMP library cannot make keys of these secrets.</source>
        <translation>SNMP 库无法由这些密钥生成钥匙。</translation>
    </message>
    <message>
        <source>The SNMP library of this computer has no privacy with &quot;%1&quot;.</source>
        <translation>本机的 SNMP 库没有使用 &quot;%1&quot; 的加密。</translation>
    </message>
</context>
<context>
    <name>SqliteStore</name>
    <message>
        <source>%1 is locked by another program</source>
        <translation>%1 被其他程序锁定</translation>
    </message>
    <message>
        <source>%1 may not be written; look at its permissions</source>
        <translation>%1 不可写；请检查其权限</translation>
    </message>
    <message>
        <source>%1 cannot be read or written; the disk is at fault</source>
        <translation>%1 无法读写；磁盘有故障</translation>
    </message>
    <message>
        <source>%1 is damaged; move it away and a new one is begun</source>
        <translation>%1 已损坏；将其移走后会新建一个</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>%1 的磁盘已满</translation>
    </message>
    <message>
        <source>%1 cannot be opened; look at its folder</source>
        <translation>%1 无法打开；请检查其文件夹</translation>
    </message>
    <message>
        <source>%1 is no history; move it away</source>
        <translation>%1 不是历史；请将其移走</translation>
    </message>
    <message>
        <source>there is no history yet: %1 does not exist</source>
        <translation>尚无历史：%1 不存在</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
</context>
<context>
    <name>StoreAddress</name>
    <message>
        <source>store is sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE</source>
        <translation>store 为 sqlite:PATH 或 postgresql://USER@HOST[:PORT]/DATABASE</translation>
    </message>
    <message>
        <source>a password does not belong in the store&apos;s address but in the keychain, or in UPSDESK_HISTORY_SECRET</source>
        <translation>密码不应写在存储地址中，而应在密钥环或 UPSDESK_HISTORY_SECRET 中</translation>
    </message>
    <message>
        <source>the path of the store begins with /: sqlite:/PATH</source>
        <translation>存储路径以 / 开头：sqlite:/PATH</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>%1 days %2 h</source>
        <translation>%1 天 %2 小时</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Show the desk</source>
        <translation>显示本台(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Mute sounds</source>
        <translation>静音(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>UpsCommand</name>
    <message>
        <source>Self-test</source>
        <translation>自检</translation>
    </message>
    <message>
        <source>Discharge test to low voltage</source>
        <translation>放电测试至低电压</translation>
    </message>
    <message>
        <source>Cancel test</source>
        <translation>取消测试</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>关机</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Wake up from standby</source>
        <translation>从待机唤醒</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>Standby takes a number of minutes from 1 to %1; nothing was sent.</source>
        <translation>待机分钟数为 1 到 %1；未发送任何内容。</translation>
    </message>
    <message>
        <source>The event %1 is no command that this desk carries out.</source>
        <translation>事件 %1 不是本台执行的命令。</translation>
    </message>
    <message>
        <source>The command %1 takes no value.</source>
        <translation>命令 %1 不带数值。</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;; known are %2%3</source>
        <translation>未知命令 &quot;%1&quot;；已知的有 %2%3</translation>
    </message>
    <message>
        <source>%1 for %2 min</source>
        <translation>%1，持续 %2 分钟</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>not offered by this device</source>
        <translation>此设备不提供</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>sent, result unknown</source>
        <translation>已发送，结果未知</translation>
    </message>
</context>
<context>
    <name>Urgency</name>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>On mains</source>
        <translation>市电供电</translation>
    </message>
    <message>
        <source>On mains, boosting</source>
        <translation>市电供电，升压</translation>
    </message>
    <message>
        <source>On mains, reducing</source>
        <translation>市电供电，降压</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Battery test</source>
        <translation>电池测试</translation>
    </message>
    <message>
        <source>On bypass</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Output off</source>
        <translation>输出关闭</translation>
    </message>
    <message>
        <source>Source unknown</source>
        <translation>来源未知</translation>
    </message>
    <message>
        <source>No new data</source>
        <translation>无新数据</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>low</source>
        <translation>电量低</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>耗尽</translation>
    </message>
    <message>
        <source>Little time left</source>
        <translation>剩余时间不足</translation>
    </message>
    <message>
        <source>little time left</source>
        <translation>剩余时间不足</translation>
    </message>
    <message>
        <source>Battery at %1 %</source>
        <translation>电池电量 %1 %</translation>
    </message>
    <message>
        <source>battery at %1 %</source>
        <translation>电池电量 %1 %</translation>
    </message>
    <message>
        <source>%1 % left</source>
        <translation>剩余 %1 %</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>负载 %1 %</translation>
    </message>
    <message>
        <source>load %1 %</source>
        <translation>负载 %1 %</translation>
    </message>
    <message>
        <source>Alarm %1</source>
        <translation>告警 %1</translation>
    </message>
    <message>
        <source>Battery at %1 °C</source>
        <translation>电池 %1 °C</translation>
    </message>
    <message>
        <source>battery at %1 °C</source>
        <translation>电池 %1 °C</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>mode = viewer needs the PostgreSQL database that the collectors write (store = postgresql://USER@HOST/DATABASE)</source>
        <translation>mode = viewer 需要采集器所写的 PostgreSQL 数据库 (store = postgresql://USER@HOST/DATABASE)</translation>
    </message>
    <message>
        <source>The collector of %1 has been silent since %2.</source>
        <translation>%1 的采集器自 %2 起没有声息。</translation>
    </message>
    <message>
        <source>this device</source>
        <translation>此设备</translation>
    </message>
    <message>
        <source>The shared store has not answered since %1.</source>
        <translation>共享存储自 %1 起没有应答。</translation>
    </message>
</context>
<context>
    <name>ViewerLine</name>
    <message>
        <source>one without a name</source>
        <translation>一个无名称的</translation>
    </message>
    <message>
        <source>%1 for %2</source>
        <translation>%1已 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>另有 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 collectors silent: %3</source>
        <translation>%2 个采集器中有 %1 个没有声息：%3</translation>
    </message>
    <message>
        <source>The shared store is not reached: %1</source>
        <translation>无法连接共享存储：%1</translation>
    </message>
    <message>
        <source>No collector has written into the shared store yet.</source>
        <translation>尚无采集器写入共享存储。</translation>
    </message>
    <message>
        <source>Viewer of one collector; its word is at most %1 old</source>
        <translation>查看一个采集器；其信息最多已过 %1</translation>
    </message>
    <message>
        <source>Viewer of %1 collectors; their word is at most %2 old</source>
        <translation>查看 %1 个采集器；其信息最多已过 %2</translation>
    </message>
    <message>
        <source>Waiting for the shared store</source>
        <translation>正在等待共享存储</translation>
    </message>
</context>
<context>
    <name>WatchList</name>
    <message>
        <source>Device added</source>
        <translation>已添加设备</translation>
    </message>
    <message>
        <source>Device changed</source>
        <translation>已更改设备</translation>
    </message>
    <message>
        <source>Device changed, was &quot;%1&quot;</source>
        <translation>已更改设备，原名 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>已移除设备</translation>
    </message>
    <message>
        <source>there is no such place in the list of devices</source>
        <translation>设备列表中没有该位置</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has faults now (line %2: %3); mend it with a text editor first</source>
        <translation>%1 已被其他程序更改，现有错误（第 %2 行：%3）；请先用文本编辑器修正</translation>
    </message>
    <message>
        <source>%1 was changed by another program and has been read again. Nothing else was changed; look at the devices and repeat the change</source>
        <translation>%1 已被其他程序更改，并已重新读取。此外没有任何更改；请查看设备并重做更改</translation>
    </message>
</context>
<context>
    <name>WebhookChannel</name>
    <message>
        <source>it answered with status %1</source>
        <translation>它以状态 %1 应答</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>没有及时应答</translation>
    </message>
    <message>
        <source>connection failed (%1)</source>
        <translation>连接失败 (%1)</translation>
    </message>
    <message>
        <source>The webhook at %1 did not take a notification: %2.</source>
        <translation>%1 的 webhook 未接受一条通知：%2。</translation>
    </message>
    <message>
        <source>The webhook at %1 takes nothing: %2 notifications wait for it.</source>
        <translation>%1 的 webhook 不接受任何内容：有 %2 条通知在等待。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>--collector takes its devices from the configuration and no further arguments</source>
        <translation>--collector 从配置中取得设备，不接受其他参数</translation>
    </message>
</context>
</TS>
