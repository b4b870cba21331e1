<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>USB摄像头1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB摄像头2</translation>
    </message>
    <message>
        <source>MIC</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>线路</translation>
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
        <source>EAR</source>
        <translation>耳机</translation>
    </message>
    <message>
        <source>HDMI1</source>
        <translation>HDMI1</translation>
    </message>
    <message>
        <source>HDMI2</source>
        <translation>HDMI2</translation>
    </message>
    <message>
        <source>CAM1</source>
        <translation>摄像1</translation>
    </message>
    <message>
        <source>CAM2</source>
        <translation>摄像2</translation>
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
        <source>Media service</source>
        <translation>媒体服务</translation>
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
