<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutPage</name>
    <message>
        <source>Device software</source>
        <translation>设备软件</translation>
    </message>
    <message>
        <source>asking the device…</source>
        <translation>正在查询设备…</translation>
    </message>
    <message>
        <source>Device system</source>
        <translation>设备系统</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>no device ID</source>
        <translation>无设备 ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>无地址</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>本程序</translation>
    </message>
    <message>
        <source>%1, built %2</source>
        <translation>%1，构建于 %2</translation>
    </message>
    <message>
        <source>Open-source components</source>
        <translation>开源组件</translation>
    </message>
    <message>
        <source>GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3</source>
        <translation>GNU LGPL 第 3 版；Qt Virtual Keyboard：GNU GPL 第 3 版</translation>
    </message>
</context>
<context>
    <name>ActionPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>直播中</translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation>未推流</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) live</source>
        <translation>
            <numerusform>%n 路直播中</numerusform>
        </translation>
    </message>
    <message>
        <source>No channel live</source>
        <translation>无直播通道</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>未录制</translation>
    </message>
    <message>
        <source>Picture in picture</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>录制 %1</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>InputRow</name>
    <message>
        <source>PROGRAMME</source>
        <translation>主输出</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>to PIP</source>
        <translation>设为画中画</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Every text changes at once. On-screen typing uses Latin letters in every language.</source>
        <translation>所有文字立即切换。屏幕键盘在各种语言下都输入拉丁字母。</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>当前语言</translation>
    </message>
</context>
<context>
    <name>LiveStore</name>
    <message>
        <source>HDMI 1</source>
        <translation>HDMI 1</translation>
    </message>
    <message>
        <source>HDMI 2</source>
        <translation>HDMI 2</translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation>USB 摄像头 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB 摄像头 2</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Mic</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>摄像头 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>摄像头 2</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>耳机</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Stop the recording now?</source>
        <translation>现在停止录制吗？</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Settings and pages</source>
        <translation>设置与功能</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Chinese, English, German</source>
        <translation>中文、英文、德文</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Versions and licences</source>
        <translation>版本与许可证</translation>
    </message>
</context>
<context>
    <name>PreviewPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>直播中</translation>
    </message>
    <message>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <source>No preview from the media service</source>
        <translation>媒体服务无预览画面</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>CH%1</source>
        <translation>通道%1</translation>
    </message>
    <message>
        <source>live</source>
        <translation>直播</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>录制 %1</translation>
    </message>
    <message>
        <source>REC off</source>
        <translation>未录制</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>无U盘</translation>
    </message>
    <message>
        <source>USB disk ?</source>
        <translation>U盘 ?</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>无地址</translation>
    </message>
    <message>
        <source>Media service silent</source>
        <translation>媒体服务无响应</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>直播导播</translation>
    </message>
</context>
</TS>
