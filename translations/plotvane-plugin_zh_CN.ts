<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddGridCommand</name>
    <message>
        <source>Grid</source>
        <translation>格网</translation>
    </message>
    <message>
        <source>Grid already exists, continue to add new grid?</source>
        <translation>格网已存在，是否继续添加新的格网？</translation>
    </message>
    <message>
        <source>Add a grid</source>
        <translation>添加格网</translation>
    </message>
</context>
<context>
    <name>AddLegendCommand</name>
    <message>
        <source>Add a legend</source>
        <translation>添加图例</translation>
    </message>
</context>
<context>
    <name>AddMapFrameElementTool</name>
    <message>
        <source>Add Data Frame</source>
        <translation>添加数据框</translation>
    </message>
</context>
<context>
    <name>AddNorthArrowCommand</name>
    <message>
        <source>North Arrow Properties</source>
        <translation>指北针属性</translation>
    </message>
</context>
<context>
    <name>AddScaleBarCommand</name>
    <message>
        <source>Add a scale bar</source>
        <translation>添加比例尺</translation>
    </message>
</context>
<context>
    <name>AddScaleTextCommand</name>
    <message>
        <source>Add a text of description of the scale</source>
        <translation>添加比例尺文字</translation>
    </message>
</context>
<context>
    <name>BottomAlignmentElement</name>
    <message>
        <source>Align the selected elements to ther bottom</source>
        <translation>将所选元素底端对齐</translation>
    </message>
</context>
<context>
    <name>BringForwardElements</name>
    <message>
        <source>Bring the selected elements forward</source>
        <translation>将所选元素上移一层</translation>
    </message>
</context>
<context>
    <name>BringToFrontElements</name>
    <message>
        <source>Bring the selected elements to the front</source>
        <translation>将所选元素置于顶层</translation>
    </message>
</context>
<context>
    <name>CenterAlignmentElement</name>
    <message>
        <source>Align the selected elements to the horizontal center</source>
        <translation>将所选元素水平居中对齐</translation>
    </message>
</context>
<context>
    <name>ConvertToGraphics</name>
    <message>
        <source>ConvertToGraphics</source>
        <translation>转换为图形</translation>
    </message>
</context>
<context>
    <name>DistributeHorizontallyElements</name>
    <message>
        <source>Distribute the selected elements evenly in the horizontal direction</source>
        <translation>将所选元素在水平方向均匀分布</translation>
    </message>
</context>
<context>
    <name>DistributeVerticallyElements</name>
    <message>
        <source>Distribute the selected elements evenly in the vertical direction</source>
        <translation>将所选元素在垂直方向均匀分布</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Invalid path!</source>
        <translation>路径无效！</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Export complete!</source>
        <translation>导出完成！</translation>
    </message>
    <message>
        <source>Drawing.......</source>
        <translation>正在绘制……</translation>
    </message>
    <message>
        <source>Processing.......</source>
        <translation>正在处理……</translation>
    </message>
</context>
<context>
    <name>ExportParaDlg</name>
    <message>
        <source>Export Map</source>
        <translation>导出地图</translation>
    </message>
    <message>
        <source>Output file:</source>
        <translation>输出文件：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>PreView</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
</context>
<context>
    <name>FitHeighttoMarginsElements</name>
    <message>
        <source>Make the selected elements the same height as the printer margin</source>
        <translation>使所选元素与页边距等高</translation>
    </message>
</context>
<context>
    <name>FitWidthtoMarginsElements</name>
    <message>
        <source>Make the selected elements the same width as the printer margin</source>
        <translation>使所选元素与页边距等宽</translation>
    </message>
</context>
<context>
    <name>FittoMarginsElements</name>
    <message>
        <source>Make the selected elements the same size as the printer margin</source>
        <translation>使所选元素与页边距大小相同</translation>
    </message>
</context>
<context>
    <name>LeftAlignmentElement</name>
    <message>
        <source>Aligh the selected elements to the left</source>
        <translation>将所选元素左对齐</translation>
    </message>
</context>
<context>
    <name>MakeSameHeightElements</name>
    <message>
        <source>Make the selected elements the same height</source>
        <translation>使所选元素等高</translation>
    </message>
</context>
<context>
    <name>MakeSameSizeElements</name>
    <message>
        <source>Make the selected elements the same size</source>
        <translation>使所选元素大小相同</translation>
    </message>
</context>
<context>
    <name>MakeSameWidthElements</name>
    <message>
        <source>Make the selected elements the same width</source>
        <translation>使所选元素等宽</translation>
    </message>
</context>
<context>
    <name>OpenProjectCommand</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>kdx File(*.kdx)</source>
        <translation>kdx 文件 (*.kdx)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Open File Failed!</source>
        <translation>打开文件失败！</translation>
    </message>
</context>
<context>
    <name>PageSettingsDlg</name>
    <message>
        <source>Page Settings</source>
        <translation>页面设置</translation>
    </message>
    <message>
        <source>Tab 1</source>
        <translation>选项卡 1</translation>
    </message>
    <message>
        <source>Tab 2</source>
        <translation>选项卡 2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Map Page Size</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>边框</translation>
    </message>
</context>
<context>
    <name>PageSizeTabPage</name>
    <message>
        <source>PageSizeTabPage</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>纸张：</translation>
    </message>
    <message>
        <source>Page Width:</source>
        <translation>页面宽度：</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Page Height:</source>
        <translation>页面高度：</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向：</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Scale Map Elements proportionally to changes in Page Size</source>
        <translation>页面大小改变时按比例缩放地图元素</translation>
    </message>
</context>
<context>
    <name>PreView</name>
    <message>
        <source>PreView</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Scaled:</source>
        <translation>缩放：</translation>
    </message>
</context>
<context>
    <name>RightAlignmentElement</name>
    <message>
        <source>Align the selected elements to the right</source>
        <translation>将所选元素右对齐</translation>
    </message>
</context>
<context>
    <name>SendBackwardElements</name>
    <message>
        <source>Send the selected elements backward</source>
        <translation>将所选元素下移一层</translation>
    </message>
</context>
<context>
    <name>SendToBackElements</name>
    <message>
        <source>Send the selected elements to the back</source>
        <translation>将所选元素置于底层</translation>
    </message>
</context>
<context>
    <name>TopAlignmentElement</name>
    <message>
        <source>Align the selected elements to the top</source>
        <translation>将所选元素顶端对齐</translation>
    </message>
</context>
<context>
    <name>VerticalCenterAlignmentElement</name>
    <message>
        <source>Align the selected elements to the vertical center</source>
        <translation>将所选元素垂直居中对齐</translation>
    </message>
</context>
</TS>
