<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Paper</name>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ColorButton</name>
    <message>
        <source>Choose Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::FramePropertyWidget</name>
    <message>
        <source>&amp;Border</source>
        <translation>边框(&amp;B)</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>线型：</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>颜色：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>间距：</translation>
    </message>
    <message>
        <source>Distance outwards from the rectangle; a negative one lies inside.</source>
        <translation>从矩形向外的距离；负值表示向内。</translation>
    </message>
    <message>
        <source>Rounding:</source>
        <translation>圆角：</translation>
    </message>
    <message>
        <source>Corner rounding: 0 % is a right angle, 100 % half the shorter side.</source>
        <translation>圆角程度：0 % 为直角，100 % 为短边的一半。</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Back&amp;ground</source>
        <translation>背景(&amp;G)</translation>
    </message>
    <message>
        <source>Fill:</source>
        <translation>填充：</translation>
    </message>
    <message>
        <source>&amp;Shadow</source>
        <translation>阴影(&amp;S)</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>向右：</translation>
    </message>
    <message>
        <source>How far the shadow lies to the right; a negative distance is to the left.</source>
        <translation>阴影向右的偏移量；负值表示向左。</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>向上：</translation>
    </message>
    <message>
        <source>How far the shadow lies upwards; a negative distance is downwards.</source>
        <translation>阴影向上的偏移量；负值表示向下。</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>实线</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>虚线</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>点线</translation>
    </message>
    <message>
        <source>Dash and dot</source>
        <translation>点划线</translation>
    </message>
    <message>
        <source>Dash and two dots</source>
        <translation>双点划线</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>无线条</translation>
    </message>
    <message>
        <source>Horizontal lines</source>
        <translation>水平线</translation>
    </message>
    <message>
        <source>Vertical lines</source>
        <translation>垂直线</translation>
    </message>
    <message>
        <source>Lines rising to the right</source>
        <translation>右斜线</translation>
    </message>
    <message>
        <source>Lines rising to the left</source>
        <translation>左斜线</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Diagonal grid</source>
        <translation>斜网格</translation>
    </message>
    <message>
        <source>No fill</source>
        <translation>无填充</translation>
    </message>
    <message>
        <source>Plain color</source>
        <translation>纯色</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::StyleSelectorDlg</name>
    <message>
        <source>All</source>
        <translation type="vanished">全部</translation>
    </message>
    <message>
        <source>The style libraries hold nothing of this kind.</source>
        <translation type="vanished">样式库中没有此类样式。</translation>
    </message>
    <message>
        <source>No name matches.</source>
        <translation type="vanished">没有匹配的名称。</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation type="vanished">样式</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="vanished">搜索</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation type="vanished">当前符号</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::TOCControl</name>
    <message>
        <source>No maps on this page</source>
        <translation type="vanished">此页面上没有地图</translation>
    </message>
</context>
</TS>
