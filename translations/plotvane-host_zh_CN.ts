<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActionTable</name>
    <message>
        <source>Needs %1</source>
        <translation>需要：%1</translation>
    </message>
</context>
<context>
    <name>AddLayersDialog</name>
    <message>
        <source>Add Layers</source>
        <translation>添加图层</translation>
    </message>
    <message>
        <source>Layers of the files</source>
        <translation>文件中的图层</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Column of &amp;x</source>
        <translation>&amp;x 列</translation>
    </message>
    <message>
        <source>Column of &amp;y</source>
        <translation>&amp;y 列</translation>
    </message>
    <message>
        <source>or column of &amp;geometries</source>
        <translation>或几何列(&amp;G)</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>A table without places can be joined to a layer, in the properties of that.</source>
        <translation>没有位置的表可在图层的属性中连接到该图层。</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>正在计数…</translation>
    </message>
    <message>
        <source>No layer is checked that could be drawn.</source>
        <translation>没有勾选可绘制的图层。</translation>
    </message>
</context>
<context>
    <name>AdmittedFeatures</name>
    <message>
        <source>Nothing of %1 lies where the map&apos;s coordinate system shows the globe, so that the layer is empty; give the map another coordinate system, or the source the one that it has in truth.</source>
        <translation>%1 的内容全部位于地图坐标系所显示的地球范围之外，因此该图层为空；请为地图选择其他坐标系，或为数据源指定其真实的坐标系。</translation>
    </message>
    <message>
        <source>There are no features in %1, so that the layer is empty.</source>
        <translation>%1中没有要素，因此图层为空。</translation>
    </message>
    <message>
        <source>None of the features of %1 has a geometry, so that the layer is empty.</source>
        <translation>%1的要素都没有几何图形，因此图层为空。</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features lie, at least in part, where there is no globe: beyond a pole or several times around. That is left out. Are longitude and latitude exchanged, or is the coordinate system another one? Give it in the source&apos;s field “coordinateSystem”.</source>
        <translation>%1的 %3 个要素中有 %2 个至少部分位于地球之外：超出极点或绕行多圈。这些部分将被忽略。经度和纬度是否颠倒，或者坐标系是否有误？请在数据源的“coordinateSystem”字段中给出坐标系。</translation>
    </message>
    <message>
        <source>None of the symbols of the layer draws what %1 has: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Give the layer another symbol.</source>
        <translation>图层的符号都不能绘制%1中的内容：填充及其轮廓绘制面，线绘制线和面，标记绘制点。请为图层选择其他符号。</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features are lines from a place to itself, of which nothing shows.</source>
        <translation>%1 的 %3 个要素中有 %2 个是起点与终点相同的线，不会显示任何内容。</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer of the same source.</source>
        <translation type="vanished">%1 的 %3 个要素中有 %2 个含有图层符号都不绘制的部分：填充及其轮廓绘制面，线绘制线和面，标记绘制点。请用同一数据源的另一个图层来显示它们。</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer of the same source that has such a symbol.</source>
        <translation>%1 的 %3 个要素中有 %2 个含有图层符号都不绘制的部分：填充及其轮廓绘制面，线绘制线和面，标记绘制点。请用同一数据源的另一个带有相应符号的图层来显示它们。</translation>
    </message>
</context>
<context>
    <name>AllowedFoldersDialog</name>
    <message>
        <source>Allowed Folders</source>
        <translation>允许的文件夹</translation>
    </message>
    <message>
        <source>Documents may use files of these folders, and of folders in them, without that being told. Of all others it is told when a document is opened.</source>
        <translation>文档可以使用这些文件夹及其子文件夹中的文件而不另行提示。使用其他文件夹中的文件时，会在打开文档时提示。</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>添加…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Allow a Folder</source>
        <translation>允许文件夹</translation>
    </message>
</context>
<context>
    <name>Archive</name>
    <message>
        <source>true or false</source>
        <translation type="vanished">真或假</translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="vanished">数字</translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="vanished">文本</translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="vanished">列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="vanished">对象</translation>
    </message>
    <message>
        <source>null</source>
        <translation type="vanished">null</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="vanished">无</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation type="vanished">应为%1，实际为%2</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation type="vanished">%1 不在 %2 和 %3 之间</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2</source>
        <translation type="vanished">文本有 %1 个字符；最多允许 %2 个</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation type="vanished">缺失</translation>
    </message>
    <message>
        <source>%1 is not a whole number</source>
        <translation type="vanished">%1 不是整数</translation>
    </message>
    <message>
        <source>expected %1 numbers, found %2</source>
        <translation type="vanished">应有 %1 个数字，实际有 %2 个</translation>
    </message>
    <message>
        <source>holds an odd count of numbers</source>
        <translation type="vanished">数字个数为奇数</translation>
    </message>
    <message>
        <source>%1 is a choice without a name</source>
        <translation type="vanished">%1 是没有名称的选项</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">“%1”不在可用值之中：%2</translation>
    </message>
    <message>
        <source>holds %1 entries; at most %2</source>
        <translation type="vanished">含有 %1 个条目；最多允许 %2 个</translation>
    </message>
</context>
<context>
    <name>AttributeModel</name>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>正在排序…</translation>
    </message>
</context>
<context>
    <name>AttributePanel</name>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Filter, as in population &gt; 1000000 AND name LIKE &apos;A%&apos;</source>
        <translation>筛选，如 population &gt; 1000000 AND name LIKE &apos;A%&apos;</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选条件</translation>
    </message>
    <message>
        <source>Zoom to Chosen</source>
        <translation>缩放到所选</translation>
    </message>
    <message>
        <source>Show the chosen features on the map; a double click on a row does so, too</source>
        <translation>在地图上显示所选要素；双击一行亦可</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Attributes of “%1”</source>
        <translation>“%1”的属性</translation>
    </message>
    <message>
        <source>Features: %1</source>
        <translation>要素：%1</translation>
    </message>
    <message>
        <source>%1 of %2 chosen</source>
        <translation>已选 %1 / %2</translation>
    </message>
    <message>
        <source>The chosen features have no place on the map.</source>
        <translation>所选要素在地图上没有位置。</translation>
    </message>
    <message>
        <source>These are too many rows to be copied; choose no more than %1.</source>
        <translation>行数过多，无法复制；请至多选择 %1 行。</translation>
    </message>
</context>
<context>
    <name>AttributeReport</name>
    <message>
        <source>there is no layer &quot;%1&quot;; write layer:MAP/LAYER, as plotvane info lists them.</source>
        <translation>没有图层“%1”；请写 layer:MAP/LAYER，如 plotvane info 所列。</translation>
    </message>
</context>
<context>
    <name>BreakHistogram</name>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
</context>
<context>
    <name>ClassCounts</name>
    <message>
        <source>The condition “%1” is not understood: %2.</source>
        <translation>条件“%1”无法理解：%2。</translation>
    </message>
    <message>
        <source>The expression “%1” is not understood: %2.</source>
        <translation>表达式“%1”无法理解：%2。</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>未能读取 %1 的全部内容：%2。</translation>
    </message>
</context>
<context>
    <name>Classify</name>
    <message>
        <source>The field “%1” holds no numbers; take the method “unique”, or a field of numbers.</source>
        <translation>字段“%1”不含数字；请使用方法“unique”，或选择数字字段。</translation>
    </message>
    <message>
        <source>No feature has a value in the field “%1”.</source>
        <translation>没有要素在字段“%1”中有值。</translation>
    </message>
    <message>
        <source>The number of classes is %1; give one from 1 to %2.</source>
        <translation>分类数为 %1；请给出 1 到 %2 之间的数。</translation>
    </message>
    <message>
        <source>There is no colour ramp “%1”; there are: %2.</source>
        <translation>没有色带“%1”；可用的有：%2。</translation>
    </message>
    <message>
        <source>The layer has no symbol that could be given other colours; give it one first.</source>
        <translation>该图层没有可以更换颜色的符号；请先为其设置一个符号。</translation>
    </message>
    <message>
        <source>Only markers and lines have sizes; take colours for the layer&apos;s areas.</source>
        <translation>只有标记和线有大小；面图层请使用颜色。</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>（空）</translation>
    </message>
</context>
<context>
    <name>ClassifyDialog</name>
    <message>
        <source>Classes of %1</source>
        <translation>%1 的分类</translation>
    </message>
    <message>
        <source>Equal intervals</source>
        <translation>等间隔</translation>
    </message>
    <message>
        <source>Quantiles</source>
        <translation>分位数</translation>
    </message>
    <message>
        <source>Natural breaks</source>
        <translation>自然断点</translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Round numbers</source>
        <translation>整数断点</translation>
    </message>
    <message>
        <source>Breaks of your own</source>
        <translation>自定义断点</translation>
    </message>
    <message>
        <source>A class for each value</source>
        <translation>每个值一类</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Values in their own order, and not the most frequent first</source>
        <translation>按值本身的顺序，而非最常见的在前</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>From</source>
        <translation>起始值</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Symbols by</source>
        <translation>符号依据</translation>
    </message>
    <message>
        <source>Features without a value, which are in no class: %1.</source>
        <translation>没有值、不属于任何分类的要素：%1。</translation>
    </message>
    <message>
        <source>There are more than %1 values; the rarer ones are in no class.</source>
        <translation>值超过 %1 个；较少见的值不属于任何分类。</translation>
    </message>
    <message>
        <source>Markers in proportion</source>
        <translation>比例标记</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Arrange</source>
        <translation>排列(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>插入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>About Plotvane</source>
        <translation>关于 Plotvane</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Add a grid to a data frame</source>
        <translation>为数据框添加格网</translation>
    </message>
    <message>
        <source>Align Bottom</source>
        <translation>底端对齐</translation>
    </message>
    <message>
        <source>Align Centres</source>
        <translation>水平居中</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>左对齐</translation>
    </message>
    <message>
        <source>Align Middles</source>
        <translation>垂直居中</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>右对齐</translation>
    </message>
    <message>
        <source>Align Top</source>
        <translation>顶端对齐</translation>
    </message>
    <message>
        <source>Align the bottom edges of the selected elements</source>
        <translation>对齐所选元素的底边</translation>
    </message>
    <message>
        <source>Align the horizontal centres of the selected elements</source>
        <translation>对齐所选元素的水平中心</translation>
    </message>
    <message>
        <source>Align the left edges of the selected elements</source>
        <translation>对齐所选元素的左边</translation>
    </message>
    <message>
        <source>Align the right edges of the selected elements</source>
        <translation>对齐所选元素的右边</translation>
    </message>
    <message>
        <source>Align the top edges of the selected elements</source>
        <translation>对齐所选元素的顶边</translation>
    </message>
    <message>
        <source>Align the vertical centres of the selected elements</source>
        <translation>对齐所选元素的垂直中心</translation>
    </message>
    <message>
        <source>Align to Margins</source>
        <translation>对齐到页边距</translation>
    </message>
    <message>
        <source>Align to the page margins instead of to the first selected element</source>
        <translation>对齐到页边距，而不是第一个选中的元素</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <translation>上移一层</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>置于顶层</translation>
    </message>
    <message>
        <source>Change Layout…</source>
        <translation>更换布局…</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容列表</translation>
    </message>
    <message>
        <source>Convert to Graphics</source>
        <translation>转换为图形</translation>
    </message>
    <message>
        <source>Data Frame</source>
        <translation>数据框</translation>
    </message>
    <message>
        <source>Delete the selected elements</source>
        <translation>删除所选元素</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Distribute Horizontally</source>
        <translation>水平分布</translation>
    </message>
    <message>
        <source>Distribute Vertically</source>
        <translation>垂直分布</translation>
    </message>
    <message>
        <source>Draw the selected elements above all others</source>
        <translation>将所选元素绘制在其他所有元素之上</translation>
    </message>
    <message>
        <source>Draw the selected elements below all others</source>
        <translation>将所选元素绘制在其他所有元素之下</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Export Map…</source>
        <translation>导出地图…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Fit Height to Margins</source>
        <translation>高度适应页边距</translation>
    </message>
    <message>
        <source>Fit Width to Margins</source>
        <translation>宽度适应页边距</translation>
    </message>
    <message>
        <source>Fit to Margins</source>
        <translation>适应页边距</translation>
    </message>
    <message>
        <source>Give the selected elements the height of the last selected one</source>
        <translation>使所选元素与最后选中的元素等高</translation>
    </message>
    <message>
        <source>Give the selected elements the size of the last selected one</source>
        <translation>使所选元素与最后选中的元素大小相同</translation>
    </message>
    <message>
        <source>Give the selected elements the width of the last selected one</source>
        <translation>使所选元素与最后选中的元素等宽</translation>
    </message>
    <message>
        <source>Go back to what was shown before</source>
        <translation>返回之前显示的范围</translation>
    </message>
    <message>
        <source>Go forward to what was shown after</source>
        <translation>前进到之后显示的范围</translation>
    </message>
    <message>
        <source>Grid…</source>
        <translation>格网…</translation>
    </message>
    <message>
        <source>Insert a data frame with an empty map</source>
        <translation>插入带有空白地图的数据框</translation>
    </message>
    <message>
        <source>Insert a legend of the focus map</source>
        <translation>插入活动地图的图例</translation>
    </message>
    <message>
        <source>Insert a north arrow chosen from the style libraries</source>
        <translation>插入从样式库中选择的指北针</translation>
    </message>
    <message>
        <source>Insert a scale bar of the focus map</source>
        <translation>插入活动地图的比例尺</translation>
    </message>
    <message>
        <source>Insert the scale of the focus map as text</source>
        <translation>以文字形式插入活动地图的比例尺</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Let the mouse move all data frames again</source>
        <translation>允许再次用鼠标移动所有数据框</translation>
    </message>
    <message>
        <source>Lock Data Frames</source>
        <translation>锁定数据框</translation>
    </message>
    <message>
        <source>Make the change again</source>
        <translation>重新执行该更改</translation>
    </message>
    <message>
        <source>Make the horizontal gaps between the selected elements equal</source>
        <translation>使所选元素之间的水平间距相等</translation>
    </message>
    <message>
        <source>Make the vertical gaps between the selected elements equal</source>
        <translation>使所选元素之间的垂直间距相等</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Move the page under the view</source>
        <translation>在视图中移动页面</translation>
    </message>
    <message>
        <source>Move the selected elements one step down</source>
        <translation>将所选元素下移一层</translation>
    </message>
    <message>
        <source>Move the selected elements one step up</source>
        <translation>将所选元素上移一层</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Next Extent</source>
        <translation>下一范围</translation>
    </message>
    <message>
        <source>North Arrow…</source>
        <translation>指北针…</translation>
    </message>
    <message>
        <source>Open a map document</source>
        <translation>打开地图文档</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>页面布局</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>页面设置…</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Previous Extent</source>
        <translation>上一范围</translation>
    </message>
    <message>
        <source>Protect all data frames from the mouse</source>
        <translation>防止用鼠标改动任何数据框</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Replace the page layout by that of another document</source>
        <translation>用另一文档的页面布局替换当前布局</translation>
    </message>
    <message>
        <source>Same Height</source>
        <translation>等高</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>大小相同</translation>
    </message>
    <message>
        <source>Same Width</source>
        <translation>等宽</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation>以其他名称保存文档</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>保存文档</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Scale Bar</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Scale Text</source>
        <translation>比例尺文字</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select all elements but locked data frames</source>
        <translation type="vanished">选择除锁定数据框以外的所有元素</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>取消所有选择</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Select, move and resize elements</source>
        <translation>选择、移动元素并调整其大小</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>下移一层</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>置于底层</translation>
    </message>
    <message>
        <source>Set paper form, size, orientation, border and background</source>
        <translation>设置纸张规格、大小、方向、边框和背景</translation>
    </message>
    <message>
        <source>Show or hide the table of contents</source>
        <translation>显示或隐藏内容列表</translation>
    </message>
    <message>
        <source>Show the map of the data frame alone</source>
        <translation>仅显示数据框中的地图</translation>
    </message>
    <message>
        <source>Show the page in its real size</source>
        <translation>按实际大小显示页面</translation>
    </message>
    <message>
        <source>Show the page</source>
        <translation>显示页面</translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation>显示整页</translation>
    </message>
    <message>
        <source>Start a document with an empty page</source>
        <translation>新建带有空白页面的文档</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the height between the margins</source>
        <translation>将所选元素拉伸到页边距之间的高度</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the page margins</source>
        <translation>将所选元素拉伸到页边距</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the width between the margins</source>
        <translation>将所选元素拉伸到页边距之间的宽度</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>Turn the selected map surrounds into plain graphics</source>
        <translation>将所选地图整饰要素转换为普通图形</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Unlock Data Frames</source>
        <translation>解锁数据框</translation>
    </message>
    <message>
        <source>Unselect</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>版本和许可证</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>整页</translation>
    </message>
    <message>
        <source>Write the page as an image file</source>
        <translation>将页面写入图像文件</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom in by click or rectangle</source>
        <translation>单击或拉框放大</translation>
    </message>
    <message>
        <source>Zoom out by click or rectangle</source>
        <translation>单击或拉框缩小</translation>
    </message>
    <message>
        <source>a change that was taken back</source>
        <translation>有已撤销的更改</translation>
    </message>
    <message>
        <source>a change to take back</source>
        <translation>有可撤销的更改</translation>
    </message>
    <message>
        <source>a document</source>
        <translation>有文档</translation>
    </message>
    <message>
        <source>a later extent</source>
        <translation>有之后的范围</translation>
    </message>
    <message>
        <source>a page layout</source>
        <translation>有页面布局</translation>
    </message>
    <message>
        <source>a selected element that is not a locked data frame</source>
        <translation type="vanished">选中一个不是锁定数据框的元素</translation>
    </message>
    <message>
        <source>a selected element</source>
        <translation>选中一个元素</translation>
    </message>
    <message>
        <source>a selected map surround</source>
        <translation>选中一个地图整饰要素</translation>
    </message>
    <message>
        <source>an earlier extent</source>
        <translation>有之前的范围</translation>
    </message>
    <message>
        <source>changes that are not saved</source>
        <translation>有未保存的更改</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>selected elements, no markers and no map surrounds among them</source>
        <translation>选中元素，且其中没有点标记和地图整饰要素</translation>
    </message>
    <message>
        <source>the page layout shown and a selected element</source>
        <translation>显示页面布局并选中一个元素</translation>
    </message>
    <message>
        <source>the page layout shown</source>
        <translation>显示页面布局</translation>
    </message>
    <message>
        <source>the page layout shown, with elements</source>
        <translation>显示含有元素的页面布局</translation>
    </message>
    <message>
        <source>three selected elements</source>
        <translation>选中三个元素</translation>
    </message>
    <message>
        <source>two selected elements</source>
        <translation>选中两个元素</translation>
    </message>
    <message>
        <source>two selected elements, or one when aligning to margins</source>
        <translation>选中两个元素；对齐到页边距时选中一个即可</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>分布</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Show or hide the properties of what is selected</source>
        <translation>显示或隐藏所选内容的属性</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Move the selected elements to the clipboard</source>
        <translation>将所选元素移到剪贴板</translation>
    </message>
    <message>
        <source>a selected element that is not locked</source>
        <translation>一个未锁定的所选元素</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the selected elements to the clipboard</source>
        <translation>将所选元素复制到剪贴板</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Put the elements, the text or the picture of the clipboard on the page</source>
        <translation>将剪贴板中的元素、文本或图片放到页面上</translation>
    </message>
    <message>
        <source>Paste in Place</source>
        <translation>原位粘贴</translation>
    </message>
    <message>
        <source>Put the elements of the clipboard where they were copied</source>
        <translation>将剪贴板中的元素放到复制时的位置</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>制作副本</translation>
    </message>
    <message>
        <source>Put copies of the selected elements beside them</source>
        <translation>在所选元素旁放置其副本</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>Make one element of the selected ones</source>
        <translation>将所选元素合为一个</translation>
    </message>
    <message>
        <source>two selected elements, no data frames and no map surrounds among them</source>
        <translation>两个所选元素，其中没有数据框和整饰要素</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>取消组合</translation>
    </message>
    <message>
        <source>Take the selected groups apart</source>
        <translation>将所选的组拆开</translation>
    </message>
    <message>
        <source>a selected group</source>
        <translation>一个所选的组</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>绘制</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Write a text on the page</source>
        <translation>在页面上书写文本</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>图片…</translation>
    </message>
    <message>
        <source>Draw the frame of a picture and choose its file</source>
        <translation>绘制图片框并选择文件</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Draw a line: drag it, or click its vertices</source>
        <translation>绘制线：拖动，或逐个单击顶点</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Draw a line with an arrow head</source>
        <translation>绘制带箭头的线</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Draw an area: click its vertices</source>
        <translation>绘制面：逐个单击顶点</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Draw a rectangle</source>
        <translation>绘制矩形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Draw an ellipse</source>
        <translation>绘制椭圆</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>点标记</translation>
    </message>
    <message>
        <source>Put a marker on the page</source>
        <translation>在页面上放置点标记</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation type="vanished">编辑文本</translation>
    </message>
    <message>
        <source>Write in the selected text where it stands</source>
        <translation type="vanished">就地编辑选中的文本</translation>
    </message>
    <message>
        <source>a selected text</source>
        <translation type="vanished">一个选中的文本</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Show or hide the list of the changes, to go back to any of them</source>
        <translation>显示或隐藏更改列表，可返回其中任意一步</translation>
    </message>
    <message>
        <source>Select all elements that are neither locked nor hidden</source>
        <translation>选择所有既未锁定也未隐藏的元素</translation>
    </message>
    <message>
        <source>Write in the selected text, or change the vertices of the selected line or polygon</source>
        <translation type="vanished">编辑选中的文本，或修改选中线或多边形的顶点</translation>
    </message>
    <message>
        <source>a selected text, line or polygon</source>
        <translation type="vanished">一个选中的文本、线或多边形</translation>
    </message>
    <message>
        <source>Rulers</source>
        <translation>标尺</translation>
    </message>
    <message>
        <source>Show or hide the rulers, out of which guides are pulled</source>
        <translation>显示或隐藏标尺，可从中拖出参考线</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>参考线</translation>
    </message>
    <message>
        <source>Show or hide the margins, guides and grid of the page</source>
        <translation>显示或隐藏页面的边距、参考线和网格</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>吸附</translation>
    </message>
    <message>
        <source>Draw what is moved to edges, centres, guides and equal gaps, but not with Alt</source>
        <translation type="vanished">使移动的对象吸附到边缘、中心、参考线和等间距处；按住 Alt 时不吸附</translation>
    </message>
    <message>
        <source>Snap what is moved to edges, centres, guides and equal gaps; Alt switches it off</source>
        <translation>使移动的对象吸附到边缘、中心、参考线和等间距处；按住 Alt 时关闭</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>图层(&amp;L)</translation>
    </message>
    <message>
        <source>a data frame</source>
        <translation>一个数据框</translation>
    </message>
    <message>
        <source>Coordinate System of the Map…</source>
        <translation>地图的坐标系…</translation>
    </message>
    <message>
        <source>Show the map in another coordinate system</source>
        <translation>以另一坐标系显示地图</translation>
    </message>
    <message>
        <source>Classes…</source>
        <translation>分类…</translation>
    </message>
    <message>
        <source>Make classes of the layer by the values of a field, and give them colours or sizes</source>
        <translation>按字段的值对图层分类，并赋予颜色或大小</translation>
    </message>
    <message>
        <source>a layer chosen in the contents</source>
        <translation>在内容列表中选中的图层</translation>
    </message>
    <message>
        <source>Identify</source>
        <translation>识别</translation>
    </message>
    <message>
        <source>Tell what lies under the mouse: the features of a map, with their attributes</source>
        <translation>告知鼠标下的内容：地图的要素及其属性</translation>
    </message>
    <message>
        <source>Attribute Table</source>
        <translation>属性表</translation>
    </message>
    <message>
        <source>Show the attributes of the chosen layer&apos;s features</source>
        <translation>显示所选图层要素的属性</translation>
    </message>
    <message>
        <source>a chosen layer of features</source>
        <translation>一个选中的要素图层</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>a row of the contents chosen</source>
        <translation>内容列表中选定的一行</translation>
    </message>
    <message>
        <source>a layer or a group chosen in the contents</source>
        <translation>内容列表中选定的图层或组</translation>
    </message>
    <message>
        <source>New from Data…</source>
        <translation>用数据新建…</translation>
    </message>
    <message>
        <source>Make a map of files of data, with a page around it</source>
        <translation>用数据文件制作地图及其页面</translation>
    </message>
    <message>
        <source>Write in the selected text, or change the vertices of the selected line or polygon, or the labels of the selected data frame</source>
        <translation>编辑所选文字，或修改所选线、多边形的顶点或所选数据框的标注</translation>
    </message>
    <message>
        <source>a selected text, line, polygon or data frame</source>
        <translation>一个选中的文字、线、多边形或数据框</translation>
    </message>
    <message>
        <source>Add Layers…</source>
        <translation>添加图层…</translation>
    </message>
    <message>
        <source>Add the data of files to the map</source>
        <translation>将文件中的数据添加到地图</translation>
    </message>
    <message>
        <source>Unplaced Labels</source>
        <translation>未放置的标注</translation>
    </message>
    <message>
        <source>Show or hide, in red, the labels of the map that found no place</source>
        <translation>以红色显示或隐藏地图中没有位置的标注</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show or hide the chosen layers and groups</source>
        <translation>显示或隐藏选定的图层和组</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Let the chosen layers cover what lies below</source>
        <translation>让选定的图层遮盖下面的内容</translation>
    </message>
    <message>
        <source>75 %</source>
        <translation>75 %</translation>
    </message>
    <message>
        <source>Let a quarter of what lies below shine through</source>
        <translation>让下面的内容透出四分之一</translation>
    </message>
    <message>
        <source>50 %</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>Let half of what lies below shine through</source>
        <translation>让下面的内容透出一半</translation>
    </message>
    <message>
        <source>25 %</source>
        <translation>25 %</translation>
    </message>
    <message>
        <source>Let three quarters of what lies below shine through</source>
        <translation>让下面的内容透出四分之三</translation>
    </message>
    <message>
        <source>Zoom to Layer</source>
        <translation>缩放到图层</translation>
    </message>
    <message>
        <source>Show all that the chosen layers hold, or all layers of a map</source>
        <translation>显示选定图层的全部内容，或地图的所有图层</translation>
    </message>
    <message>
        <source>Zoom to Scale Range</source>
        <translation>缩放到比例尺范围</translation>
    </message>
    <message>
        <source>Give the map a scale at which the chosen layer shows</source>
        <translation>把地图设为选定图层可见的比例尺</translation>
    </message>
    <message>
        <source>a layer with limits of scale chosen in the contents</source>
        <translation>内容列表中选定的带比例尺限制的图层</translation>
    </message>
    <message>
        <source>Work on This Map</source>
        <translation>处理此地图</translation>
    </message>
    <message>
        <source>Give the chosen map the focus</source>
        <translation>使选定的地图成为焦点</translation>
    </message>
    <message>
        <source>a map chosen in the contents</source>
        <translation>内容列表中选定的地图</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修复…</translation>
    </message>
    <message>
        <source>Find the file of the chosen layer, and those of others beside it</source>
        <translation>查找选定图层的文件，以及旁边其他图层的文件</translation>
    </message>
    <message>
        <source>a layer chosen in the contents whose data can&apos;t be read</source>
        <translation>内容列表中选定的、数据无法读取的图层</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Write another name of the chosen map, layer or group</source>
        <translation>为选定的地图、图层或组输入另一个名称</translation>
    </message>
    <message>
        <source>Move the chosen layers to the clipboard</source>
        <translation>把选定的图层移到剪贴板</translation>
    </message>
    <message>
        <source>Copy the chosen layers to the clipboard</source>
        <translation>把选定的图层复制到剪贴板</translation>
    </message>
    <message>
        <source>Put the layers of the clipboard above the chosen one</source>
        <translation>把剪贴板中的图层放到选定图层之上</translation>
    </message>
    <message>
        <source>Put copies of the chosen layers above them</source>
        <translation>把选定图层的副本放在其上</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove the chosen layers from their maps; their files stay</source>
        <translation>从地图中移除选定的图层；文件保留</translation>
    </message>
    <message>
        <source>Put the chosen layers and groups into a new group</source>
        <translation>把选定的图层和组放入新组</translation>
    </message>
    <message>
        <source>layers of one map chosen in the contents</source>
        <translation>内容列表中选定的同一地图的图层</translation>
    </message>
    <message>
        <source>Take the chosen groups of layers apart</source>
        <translation>解散选定的图层组</translation>
    </message>
    <message>
        <source>a group of layers chosen in the contents</source>
        <translation>内容列表中选定的图层组</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move the chosen layers up by one place</source>
        <translation>把选定的图层上移一位</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move the chosen layers down by one place</source>
        <translation>把选定的图层下移一位</translation>
    </message>
    <message>
        <source>Move into Group</source>
        <translation>移入组</translation>
    </message>
    <message>
        <source>Move the chosen layers into the group below or above them</source>
        <translation>把选定的图层移入下方或上方的组</translation>
    </message>
    <message>
        <source>Move out of Group</source>
        <translation>移出组</translation>
    </message>
    <message>
        <source>Move the chosen layers out of their group, above it</source>
        <translation>把选定的图层移出其组，放在组之上</translation>
    </message>
    <message>
        <source>a layer of a group chosen in the contents</source>
        <translation>内容列表中选定的组内图层</translation>
    </message>
    <message>
        <source>Layer Properties…</source>
        <translation>图层属性…</translation>
    </message>
    <message>
        <source>Show everything about the chosen layer: source, symbols, labels, scales, file</source>
        <translation>显示所选图层的全部信息：数据源、符号、标注、比例尺、文件</translation>
    </message>
    <message>
        <source>a layer of features chosen in the contents</source>
        <translation>在内容列表中选择一个要素图层</translation>
    </message>
    <message>
        <source>Document Properties…</source>
        <translation>文档属性…</translation>
    </message>
    <message>
        <source>Set what the document says about itself: title, author, keywords</source>
        <translation>设置文档对自身的说明：标题、作者、关键词</translation>
    </message>
    <message>
        <source>Keep Earlier Version</source>
        <translation>保留先前版本</translation>
    </message>
    <message>
        <source>Let a save keep what the file held before, as a file with “~” behind its name</source>
        <translation>保存时将文件原有内容保留为名称后带“~”的文件</translation>
    </message>
    <message>
        <source>Export as PDF…</source>
        <translation>导出为 PDF…</translation>
    </message>
    <message>
        <source>Write the page as a PDF of shapes and texts</source>
        <translation>将页面写成由图形和文本组成的 PDF</translation>
    </message>
    <message>
        <source>Export as SVG…</source>
        <translation>导出为 SVG…</translation>
    </message>
    <message>
        <source>Write the page as an SVG of shapes and texts</source>
        <translation>将页面写成由图形和文本组成的 SVG</translation>
    </message>
    <message>
        <source>a series of pages</source>
        <translation>页面系列</translation>
    </message>
    <message>
        <source>Series of Pages…</source>
        <translation>页面系列…</translation>
    </message>
    <message>
        <source>Make a page for each feature of a layer</source>
        <translation>为图层的每个要素制作一页</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>首页</translation>
    </message>
    <message>
        <source>Show the first page of the series</source>
        <translation>显示系列的第一页</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Show the page before in the series</source>
        <translation>显示系列中的前一页</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Show the next page of the series</source>
        <translation>显示系列的下一页</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>末页</translation>
    </message>
    <message>
        <source>Show the last page of the series</source>
        <translation>显示系列的最后一页</translation>
    </message>
    <message>
        <source>No Page of the Series</source>
        <translation>不显示系列页面</translation>
    </message>
    <message>
        <source>Show the document as it is stored</source>
        <translation>按存储的样子显示文档</translation>
    </message>
    <message>
        <source>Print Preview…</source>
        <translation>打印预览…</translation>
    </message>
    <message>
        <source>Show the sheets of paper as they would be printed</source>
        <translation>显示将要打印的纸张</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>打印…</translation>
    </message>
    <message>
        <source>Print the page, on several sheets where it is larger than the paper</source>
        <translation>打印页面；大于纸张时分成多张</translation>
    </message>
    <message>
        <source>Allowed Folders…</source>
        <translation>允许的文件夹…</translation>
    </message>
    <message>
        <source>Name folders of which documents may use files without that being told</source>
        <translation>指定文件夹，文档使用其中的文件时不再提示</translation>
    </message>
    <message>
        <source>Connections…</source>
        <translation>连接…</translation>
    </message>
    <message>
        <source>Name databases that layers may come from, and try them</source>
        <translation>为图层可用的数据库命名并测试</translation>
    </message>
    <message>
        <source>Add Layers from Database…</source>
        <translation>从数据库添加图层…</translation>
    </message>
    <message>
        <source>Add tables of a PostGIS database to the map</source>
        <translation>将 PostGIS 数据库的表添加到地图</translation>
    </message>
    <message>
        <source>Index Large Files</source>
        <translation>为大文件建立索引</translation>
    </message>
    <message>
        <source>Keep indexes of large files that have none in the user&apos;s cache, so that only what a map shows is read</source>
        <translation>在用户缓存中为没有索引的大文件保留索引，以便只读取地图所显示的部分</translation>
    </message>
</context>
<context>
    <name>CommandsSubcommand</name>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>输出 JSON,供程序使用。</translation>
    </message>
    <message>
        <source>Print the reference of all commands, the host&apos;s included.</source>
        <translation>输出所有命令的参考，包括主程序的命令。</translation>
    </message>
</context>
<context>
    <name>ConditionDialog</name>
    <message>
        <source>%1 of %2 features pass.</source>
        <translation>%2 个要素中有 %1 个符合条件。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>date or time</source>
        <translation>日期或时间</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>Count the features that pass</source>
        <translation>统计符合条件的要素数</translation>
    </message>
    <message>
        <source>Show what comes of the first features</source>
        <translation>显示前几个要素的结果</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>population &gt; 1000000 AND name LIKE &apos;A%&apos;</source>
        <translation>population &gt; 1000000 AND name LIKE &apos;A%&apos;</translation>
    </message>
    <message>
        <source>population / 1000</source>
        <translation>population / 1000</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>字段(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Values of the field</source>
        <translation>字段的值(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Condition; empty for all features</source>
        <translation>条件(&amp;C)；留空表示所有要素</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>表达式(&amp;X)</translation>
    </message>
    <message>
        <source>It has no value for the first features.</source>
        <translation>对前几个要素没有值。</translation>
    </message>
    <message>
        <source>Of the first features: %1</source>
        <translation>前几个要素的结果：%1</translation>
    </message>
</context>
<context>
    <name>ConnectionAccess</name>
    <message>
        <source>your user</source>
        <translation>您的用户</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Password of %1 for the connection “%2”; it is kept until the program ends:</source>
        <translation>%1 用于连接“%2”的密码;保留到程序结束:</translation>
    </message>
    <message>
        <source>The password was not right.</source>
        <translation>密码不正确。</translation>
    </message>
</context>
<context>
    <name>Connections</name>
    <message>
        <source>holds a quote, a backslash, an equals sign or a control character; leave it out</source>
        <translation>含有引号、反斜杠、等号或控制字符;请去掉</translation>
    </message>
    <message>
        <source>takes up to 60 letters, digits, “-”, “_” and “.”, not “%1”</source>
        <translation>最多 60 个字母、数字、“-”、“_”和“.”,而不是“%1”</translation>
    </message>
    <message>
        <source>The connection “%1” is not known on this computer; add it in Edit › Connections…, or with plotvane connections add %1.</source>
        <translation>此计算机上不存在连接“%1”;请在“编辑 › 连接…”中添加,或使用 plotvane connections add %1。</translation>
    </message>
    <message>
        <source>The connection “%1” is not open to documents; allow it when the window asks or in Edit › Connections…, or pass --allow-connection %1.</source>
        <translation>连接“%1”未对文档开放;请在窗口询问时或在“编辑 › 连接…”中允许,或给出 --allow-connection %1。</translation>
    </message>
    <message>
        <source>the server has not answered for %1 s</source>
        <translation>服务器已有 %1 秒没有应答</translation>
    </message>
    <message>
        <source>The connection “%1” can&apos;t be opened: %2. Try it with plotvane connections test %1.</source>
        <translation>无法打开连接“%1”:%2。可用 plotvane connections test %1 测试。</translation>
    </message>
    <message>
        <source>this GDAL reads no PostgreSQL</source>
        <translation>此 GDAL 不能读取 PostgreSQL</translation>
    </message>
    <message>
        <source>%1; write it into ~/.pgpass, or pass it in PGPASSWORD</source>
        <translation>%1;请写入 ~/.pgpass,或通过 PGPASSWORD 给出</translation>
    </message>
    <message>
        <source>The connection “%1” has no table with geometries that its user may read.</source>
        <translation>连接“%1”中没有其用户可读取的几何表。</translation>
    </message>
    <message>
        <source>The connection “%1” has no table “%2” with geometries; it has: %3.</source>
        <translation>连接“%1”中没有几何表“%2”;现有:%3。</translation>
    </message>
    <message>
        <source>The table “%1” of the connection “%2” can&apos;t be read: %3.</source>
        <translation>无法读取连接“%2”的表“%1”：%3。</translation>
    </message>
    <message>
        <source>The user of the connection “%1” has no permission to read the table “%2”; have its owner grant that user SELECT.</source>
        <translation>连接“%1”的用户无权读取表“%2”;请让该表的所有者授予该用户 SELECT 权限。</translation>
    </message>
    <message>
        <source>GDAL does not say why</source>
        <translation>GDAL 没有说明原因</translation>
    </message>
</context>
<context>
    <name>ConnectionsDialog</name>
    <message>
        <source>Connections</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connections to databases</source>
        <translation>数据库连接</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation>更改(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <translation>%1:%3 上的 %2</translation>
    </message>
    <message>
        <source> (open to documents)</source>
        <translation>(对文档开放)</translation>
    </message>
    <message>
        <source>database</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>Connection “%1”</source>
        <translation>连接“%1”</translation>
    </message>
    <message>
        <source>New Connection</source>
        <translation>新连接</translation>
    </message>
    <message>
        <source>There is a connection “%1” already; take another name.</source>
        <translation>已有连接“%1”;请换一个名称。</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>The connection “%1” leads to these tables: %2.</source>
        <translation>连接“%1”含有这些表:%2。</translation>
    </message>
    <message>
        <source>Remove the connection “%1”? Layers that are read from it can&apos;t be read then.</source>
        <translation>移除连接“%1”？之后将无法读取来自它的图层。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>ConnectionsSubcommand</name>
    <message>
        <source>The computer of the server, or the folder of its socket.</source>
        <translation>服务器的计算机,或其套接字所在的文件夹。</translation>
    </message>
    <message>
        <source>Its port; 5432 if not given.</source>
        <translation>端口;未给出时为 5432。</translation>
    </message>
    <message>
        <source>The database.</source>
        <translation>数据库。</translation>
    </message>
    <message>
        <source>The user, best one that may only read.</source>
        <translation>用户,最好只有读取权限。</translation>
    </message>
    <message>
        <source>prefer, disable, require, verify-ca or verify-full.</source>
        <translation>prefer、disable、require、verify-ca 或 verify-full。</translation>
    </message>
    <message>
        <source>How many seconds it may take for an answer; 30 if not given.</source>
        <translation>应答允许的秒数;未给出时为 30。</translation>
    </message>
    <message>
        <source>connections: there is no connection &quot;%1&quot;; plotvane connections list tells which there are.</source>
        <translation>connections:没有连接 &quot;%1&quot;;plotvane connections list 会列出现有的连接。</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>open to documents</source>
        <translation>对文档开放</translation>
    </message>
    <message>
        <source>There are no connections; plotvane connections add NAME makes one.</source>
        <translation>没有连接;plotvane connections add NAME 可创建一个。</translation>
    </message>
    <message>
        <source>connections: there is a connection &quot;%1&quot; already; remove it first, or take another name.</source>
        <translation>connections:已有连接 &quot;%1&quot;;请先移除它,或换一个名称。</translation>
    </message>
    <message>
        <source>%1 answers, and has these tables: %2.</source>
        <translation>%1 有应答,含有这些表:%2。</translation>
    </message>
    <message>
        <source>list, add, remove or test.</source>
        <translation>list、add、remove 或 test。</translation>
    </message>
    <message>
        <source>What documents call the connection.</source>
        <translation>文档中使用的连接名称。</translation>
    </message>
    <message>
        <source>Documents that are opened in the window may use it unasked.</source>
        <translation>在窗口中打开的文档可不经询问使用它。</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>输出 JSON,供程序使用。</translation>
    </message>
    <message>
        <source>connections: &quot;%1&quot; is none of list, add, remove and test.</source>
        <translation>connections:&quot;%1&quot; 不是 list、add、remove 或 test。</translation>
    </message>
    <message>
        <source>connections: the name of the connection is missing.</source>
        <translation>connections:缺少连接名称。</translation>
    </message>
    <message>
        <source>connections: list takes no name, such as &quot;%1&quot;.</source>
        <translation>connections:list 不接受名称,如 &quot;%1&quot;。</translation>
    </message>
</context>
<context>
    <name>CoordinateSystem</name>
    <message>
        <source>is longer than a coordinate system can be</source>
        <translation>长度超出坐标系定义的上限</translation>
    </message>
    <message>
        <source>“%1” is no coordinate system; give a code such as EPSG:8857, WKT or a PROJ text</source>
        <translation>“%1”不是坐标系；请给出 EPSG:8857 之类的代码、WKT 或 PROJ 文本</translation>
    </message>
    <message>
        <source>names a file, and a document&apos;s coordinate system may not; leave out the grid or the file</source>
        <translation>引用了文件，而文档的坐标系不允许引用文件；请去掉格网或文件</translation>
    </message>
    <message>
        <source>“%1” is not a coordinate system that PROJ knows; give a code such as EPSG:8857</source>
        <translation>“%1”不是 PROJ 已知的坐标系；请给出 EPSG:8857 之类的代码</translation>
    </message>
    <message>
        <source>is neither geographic nor projected; leave it empty for plain coordinates</source>
        <translation>既不是地理坐标系也不是投影坐标系；使用普通坐标时请留空</translation>
    </message>
</context>
<context>
    <name>Coverage</name>
    <message>
        <source>The document has no series of pages; name its layer in “series/layer”.</source>
        <translation>文档没有页面系列；请在“series/layer”中指定其图层。</translation>
    </message>
    <message>
        <source>The series names no map that is on the page; give its number in “series/map”.</source>
        <translation>系列没有指定页面上的地图；请在“series/map”中给出其编号。</translation>
    </message>
    <message>
        <source>The map “%1” has no layer “%2” whose features could have pages; name one of these in “series/layer”: %3.</source>
        <translation>地图“%1”没有图层“%2”，其要素无法成页；请在“series/layer”中指定其中之一：%3。</translation>
    </message>
    <message>
        <source>The series has no pages: no feature of its layer meets its filters; change “series/filter”.</source>
        <translation>系列没有页面：其图层没有要素满足过滤条件；请修改“series/filter”。</translation>
    </message>
    <message>
        <source>The features of the series have no field “%1”; they have: %2.</source>
        <translation>系列的要素没有字段“%1”；它们有：%2。</translation>
    </message>
</context>
<context>
    <name>DataReport</name>
    <message>
        <source>no geometry</source>
        <translation>无几何</translation>
    </message>
    <message>
        <source>points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>线</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>面</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>%1 features</source>
        <translation>%1 个要素</translation>
    </message>
    <message>
        <source>placed by the columns %1 and %2</source>
        <translation>由列 %1 和 %2 定位</translation>
    </message>
    <message>
        <source>placed by the column %1</source>
        <translation>由列 %1 定位</translation>
    </message>
    <message>
        <source>fields: %1</source>
        <translation>字段：%1</translation>
    </message>
    <message>
        <source>raster</source>
        <translation>栅格</translation>
    </message>
    <message>
        <source>bands: %1</source>
        <translation>波段:%1</translation>
    </message>
</context>
<context>
    <name>DataSource</name>
    <message>
        <source>The file “%1” can&apos;t be opened: %2.</source>
        <translation>无法打开文件“%1”：%2。</translation>
    </message>
    <message>
        <source>The source names no file; give the path of a local file.</source>
        <translation>数据源没有指定文件；请给出本地文件的路径。</translation>
    </message>
    <message>
        <source>The source “%1” is not a local file: virtual file systems are not opened.</source>
        <translation>数据源“%1”不是本地文件：不打开虚拟文件系统。</translation>
    </message>
    <message>
        <source>The source “%1” is not a local file: addresses are not opened.</source>
        <translation>数据源“%1”不是本地文件：不打开网络地址。</translation>
    </message>
    <message>
        <source>The source “%1” is not a plain path: leave out the prefix before the colon.</source>
        <translation>数据源“%1”不是普通路径：请去掉冒号前的前缀。</translation>
    </message>
    <message>
        <source>The source “%1” is not a path.</source>
        <translation>数据源“%1”不是路径。</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation type="vanished">文件不存在</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="vanished">它不是文件</translation>
    </message>
    <message>
        <source>reading it is not permitted</source>
        <translation type="vanished">没有读取权限</translation>
    </message>
    <message>
        <source>it is not a GeoPackage, GeoJSON, Shapefile or FlatGeobuf file</source>
        <translation type="vanished">它不是 GeoPackage、GeoJSON、Shapefile 或 FlatGeobuf 文件</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>文件“%1”没有图层“%2”；它有：%3。</translation>
    </message>
    <message>
        <source>it does not exist; put it there, or name another file in the layer&apos;s source</source>
        <translation>文件不存在;请放到该处,或在图层的数据源中指定其他文件</translation>
    </message>
    <message>
        <source>it is not a file; name one in the layer&apos;s source</source>
        <translation>不是文件;请在图层的数据源中指定一个文件</translation>
    </message>
    <message>
        <source>reading it is not permitted; make it readable</source>
        <translation>没有读取权限；请使其可读</translation>
    </message>
    <message>
        <source>The file “%1” holds no features.</source>
        <translation>文件“%1”不含要素。</translation>
    </message>
    <message>
        <source>The file “%1” holds no layer.</source>
        <translation>文件“%1”不含图层。</translation>
    </message>
    <message>
        <source>There is no field “%1” by which “%2” could be joined; the features have: %3.</source>
        <translation>没有可用于连接“%2”的字段“%1”；要素的字段有：%3。</translation>
    </message>
    <message>
        <source>The table “%1” has no field “%2” to be joined by; it has: %3.</source>
        <translation>表“%1”没有用于连接的字段“%2”；它的字段有：%3。</translation>
    </message>
    <message>
        <source>No feature found a row in “%1”: no value of “%2”, such as “%3”, is a value of “%4”, such as “%5”.</source>
        <translation>没有要素在“%1”中找到对应行：“%2”的值（如“%3”）都不是“%4”的值（如“%5”）。</translation>
    </message>
    <message>
        <source>%1 of %2 features found no row in “%3”, such as the one with “%4” in “%5”.</source>
        <translation>%2 个要素中有 %1 个在“%3”中没有对应行，例如“%5”为“%4”的要素。</translation>
    </message>
    <message>
        <source>Rows of “%1” whose key an earlier row has, such as “%2”, are not used: %3 in all.</source>
        <translation>“%1”中键与前面的行重复的行（如“%2”）不使用：共 %3 行。</translation>
    </message>
    <message>
        <source>its text is encoded as UTF-16; save it as UTF-8</source>
        <translation>其文本编码为 UTF-16；请另存为 UTF-8</translation>
    </message>
    <message>
        <source>it only refers to other tables; name one of those</source>
        <translation>它只引用其他表；请指定其中之一</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive</source>
        <translation type="vanished">此压缩包中没有 Shapefile</translation>
    </message>
    <message>
        <source>its format is none of those that are known (%1)</source>
        <translation>其格式不在已知格式之列(%1)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>Of the columns of coordinates in “%1” only one is named; give both xField and yField, or neither.</source>
        <translation>“%1”的坐标列只指定了一个；请同时给出 xField 和 yField，或都不给。</translation>
    </message>
    <message>
        <source>The table “%1” has no column “%2”; it has: %3.</source>
        <translation>表“%1”没有列“%2”；它有：%3。</translation>
    </message>
    <message>
        <source>it is longer than 1 MB, too long to describe a table; name a MapInfo table&apos;s .tab file</source>
        <translation>文件超过 1 MB，对表的描述而言过长；请指定某个 MapInfo 表的 .tab 文件</translation>
    </message>
    <message>
        <source>its blocks repeat themselves or each other without end; explode them</source>
        <translation>其图块无休止地重复自身或彼此；请将其分解</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>波段 %1</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>it holds a table or a coordinate system that leads to another file, which is not opened; remove it</source>
        <translation>其中有表或坐标系指向另一个文件，该文件不会被打开；请将其移除</translation>
    </message>
    <message>
        <source>its coordinate system names a file by a path, which is not opened; give it another coordinate system</source>
        <translation>其坐标系按路径引用了一个文件，该文件不会被打开；请为其指定另一个坐标系</translation>
    </message>
    <message>
        <source>%1 beside it is no file of its own; remove that</source>
        <translation>旁边的 %1 不是独立的文件；请将其移除</translation>
    </message>
    <message>
        <source>a change of it was not brought to its end, and lies beside it in %1; open it once in the program that changed it, and close it there</source>
        <translation>对它的一次更改没有完成，留在旁边的 %1 中；请在更改它的程序中打开一次，再将其关闭</translation>
    </message>
    <message>
        <source>it holds far more than an archive of its size should; unpack it, and name the file in it</source>
        <translation>它包含的内容远多于这种大小的压缩包所应有的；请解压并指定其中的文件</translation>
    </message>
    <message>
        <source>The connection “%1” has no table with geometries that its user may read.</source>
        <translation>连接“%1”中没有其用户可读取的几何表。</translation>
    </message>
    <message>
        <source>another program is just writing it; try again when that is done</source>
        <translation>另一个程序正在写入该文件；请等它写完后再试</translation>
    </message>
    <message>
        <source>there is no KML in this archive that can be read; unpack it, and name the file in it</source>
        <translation>此压缩包中没有可读取的 KML 文件；请将其解压，然后指定其中的文件</translation>
    </message>
    <message>
        <source>The table “%1” of the connection “%2” can&apos;t be read: %3.</source>
        <translation>无法读取连接“%2”的表“%1”：%3。</translation>
    </message>
    <message>
        <source>it begins as a file of the format %1 does, and is not whole, or damaged; fetch it again</source>
        <translation>其开头像 %1 格式的文件，但不完整或已损坏；请重新获取</translation>
    </message>
    <message>
        <source>the index that belongs to it, “%1”, is missing; put it beside it</source>
        <translation>缺少与其配套的索引“%1”；请将其放在同一位置</translation>
    </message>
    <message>
        <source>The coordinate system that the file “%1” names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">文件“%1”所指的坐标系未知（%2）；其坐标按经度和纬度处理。请在数据源的字段“coordinateSystem”中给出坐标系。</translation>
    </message>
    <message>
        <source>Rows of the file “%1” whose coordinates can&apos;t be read, such as “%2”, have no place on the map: %3 in all. Mend them in the file.</source>
        <translation>文件“%1”中坐标无法读取的行（如“%2”）在地图上没有位置：共 %3 行。请在文件中更正。</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive that is whole, with its parts .shp, .shx and .dbf</source>
        <translation type="vanished">此压缩包中没有完整的 Shapefile（须包含 .shp、.shx 和 .dbf 部分）</translation>
    </message>
    <message>
        <source>its texts are UTF-16; save it as UTF-8</source>
        <translation type="vanished">其文本为 UTF-16；请另存为 UTF-8</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive that is whole, with its parts .shp and .shx</source>
        <translation>此压缩包中没有完整的 Shapefile（须包含 .shp 和 .shx 部分）</translation>
    </message>
</context>
<context>
    <name>DataSurvey</name>
    <message>
        <source>Some features (%1) lie far from all others, perhaps by wrong coordinates: they are drawn, but the map does not reach so far.</source>
        <translation>有些要素（%1 个）远离其他所有要素，坐标可能有误：它们仍会绘制，但地图范围不延伸到那里。</translation>
    </message>
</context>
<context>
    <name>DialogAnswers</name>
    <message>
        <source>the message box &quot;%1&quot; (&quot;%2&quot;)</source>
        <translation>消息框“%1”（“%2”）</translation>
    </message>
    <message>
        <source>the dialog &quot;%1&quot; (%2)</source>
        <translation>对话框“%1”（%2）</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 不接受“%2”</translation>
    </message>
    <message>
        <source>it can&apos;t be accepted like this</source>
        <translation>这样无法确定</translation>
    </message>
    <message>
        <source>; the next answer is for %1</source>
        <translation type="vanished">；下一个回答是给 %1 的</translation>
    </message>
    <message>
        <source>no dialog has taken the answer for %1</source>
        <translation type="vanished">没有对话框接受给 %1 的回答</translation>
    </message>
    <message>
        <source>a dialog as a whole</source>
        <translation type="vanished">整个对话框</translation>
    </message>
    <message>
        <source>nobody answers it; put answer=WIDGET:VALUE, accept or cancel before the command</source>
        <translation>没有给出回答；请在命令之前加上 answer=WIDGET:VALUE、accept 或 cancel</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>从 %1 到 %2 的整数</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>从 %1 到 %2 的数</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on 或 off</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;; check the name and the folder</source>
        <translation>没有文件“%1”；请检查名称和文件夹</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;: it is switched off in the dialog as it is now</source>
        <translation>%1 不接受“%2”：在对话框的当前状态下它已停用</translation>
    </message>
    <message>
        <source>%1; it takes %2</source>
        <translation>%1；可用的是 %2</translation>
    </message>
    <message>
        <source>the answer for %1</source>
        <translation>%1 的回答</translation>
    </message>
    <message>
        <source>; next is %1</source>
        <translation>；接下来是 %1</translation>
    </message>
    <message>
        <source>no dialog has taken %1</source>
        <translation>没有对话框接受 %1</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Map documents (*.kdx)</source>
        <translation>地图文档 (*.kdx)</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>是否保存对 %1 的更改？</translation>
    </message>
    <message>
        <source>Without saving, they are lost.</source>
        <translation>如果不保存，更改将会丢失。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>The document was not opened.</source>
        <translation>文档未能打开。</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>……以及另外 %1 条。</translation>
    </message>
    <message>
        <source>The document was opened, but not all of it was read.</source>
        <translation>文档已打开，但未能全部读取。</translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation>文档未能保存。</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>没有最近打开的文件</translation>
    </message>
    <message>
        <source>The page will not be whole.</source>
        <translation>页面将不完整。</translation>
    </message>
    <message>
        <source>Export it all the same?</source>
        <translation>仍要导出吗？</translation>
    </message>
    <message>
        <source>Open %1 to read it? Changes are then saved under another name.</source>
        <translation>以只读方式打开 %1 吗？更改将以其他名称保存。</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>Replace it?</source>
        <translation>要替换吗？</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was read.</source>
        <translation>读取之后，%1 已被其他程序更改。</translation>
    </message>
    <message>
        <source>Replace what it holds now?</source>
        <translation>要替换其当前内容吗？</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>请选择其他名称。</translation>
    </message>
    <message>
        <source>Changed by another program: %1.</source>
        <translation>已被其他程序更改：%1。</translation>
    </message>
    <message>
        <source>Removed by another program: %1.</source>
        <translation>已被其他程序删除：%1。</translation>
    </message>
    <message>
        <source>%1 holds changes that were not saved.</source>
        <translation>%1 含有未保存的更改。</translation>
    </message>
    <message>
        <source>Drop them and read the file?</source>
        <translation>要放弃更改并重新读取文件吗？</translation>
    </message>
    <message>
        <source>Not all data could be read.</source>
        <translation>部分数据无法读取。</translation>
    </message>
    <message>
        <source>The map was not made.</source>
        <translation>地图未制作。</translation>
    </message>
    <message>
        <source>The map was made, but not of all data.</source>
        <translation type="vanished">地图已制作，但未包含所有数据。</translation>
    </message>
    <message>
        <source>The map was made. Some of its data need a look.</source>
        <translation>地图已生成。其中部分数据需要查看。</translation>
    </message>
</context>
<context>
    <name>DocumentLock</name>
    <message>
        <source>somebody</source>
        <translation>某人</translation>
    </message>
    <message>
        <source>%1 is open already: by %2 on %3, since %4. If that is over, delete %5.</source>
        <translation>%1 已被打开：由 %2 在 %3 上，自 %4 起。如果已不再使用，请删除 %5。</translation>
    </message>
    <message>
        <source>an unknown machine</source>
        <translation>未知的计算机</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>marker</source>
        <translation>点标记</translation>
    </message>
    <message>
        <source>line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>data frame</source>
        <translation>数据框</translation>
    </message>
    <message>
        <source>map surround frame</source>
        <translation>地图整饰要素</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>raster</source>
        <translation>栅格</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>没有页面</translation>
    </message>
    <message>
        <source>Page: %1, %2, %3 × %4 cm</source>
        <translation>页面：%1，%2，%3 × %4 厘米</translation>
    </message>
    <message>
        <source>handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>xmin  ymin  xmax  ymax (cm)</source>
        <translation>xmin  ymin  xmax  ymax (cm)</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source> (selected)</source>
        <translation> (已选中)</translation>
    </message>
    <message>
        <source> (locked)</source>
        <translation> (已锁定)</translation>
    </message>
    <message>
        <source>Elements: %1</source>
        <translation>元素：%1</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Map: %1, scale 1:%2, extent %3</source>
        <translation>地图：%1，比例尺 1:%2，范围 %3</translation>
    </message>
    <message>
        <source> (focus)</source>
        <translation> (焦点)</translation>
    </message>
    <message>
        <source>Map: %1, no layers</source>
        <translation>地图：%1，无图层</translation>
    </message>
    <message>
        <source>Series: %1 pages</source>
        <translation>系列：%1 页</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>外部</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>connection %1, table %2</source>
        <translation>连接 %1,表 %2</translation>
    </message>
    <message>
        <source>%1 of %2 labels placed</source>
        <translation>已放置注记 %1，共 %2</translation>
    </message>
</context>
<context>
    <name>DocumentSession</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>DocumentSettings</name>
    <message>
        <source>is no tag of a language; write one as in “en” or “de-CH”</source>
        <translation>不是语言标签；请写成 “en” 或 “de-CH” 这样的形式</translation>
    </message>
</context>
<context>
    <name>DocumentSources</name>
    <message>
        <source>Layer “%1”: %2</source>
        <translation>图层“%1”：%2</translation>
    </message>
</context>
<context>
    <name>DrawingProgress</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Editable</name>
    <message>
        <source>can&apos;t be changed</source>
        <translation>无法更改</translation>
    </message>
    <message>
        <source>the page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>there is no field to set</source>
        <translation>没有可设置的字段</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 个元素</translation>
    </message>
    <message>
        <source>Set %1 of %2</source>
        <translation>设置 %2 的 %1</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>the series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>“%1” is a thing of its own, written without “document/”: %2</source>
        <translation>“%1”是独立的对象，书写时不带“document/”：%2</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
</context>
<context>
    <name>ElementArchive</name>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax</source>
        <translation type="vanished">必须是 xmin, ymin, xmax, ymax，且 xmin ≤ xmax、ymin ≤ ymax</translation>
    </message>
    <message>
        <source>needs at least %1 points</source>
        <translation type="vanished">至少需要 %1 个点</translation>
    </message>
    <message>
        <source>holds a coordinate beyond %1</source>
        <translation type="vanished">含有超出 %1 的坐标</translation>
    </message>
    <message>
        <source>needs at least one ring</source>
        <translation type="vanished">至少需要一个环</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation type="vanished">组的嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>is no map of the document</source>
        <translation type="vanished">不是该文档中的地图</translation>
    </message>
    <message>
        <source>another data frame shows this map already</source>
        <translation type="vanished">另一个数据框已显示此地图</translation>
    </message>
    <message>
        <source>%1 is another element&apos;s handle already</source>
        <translation type="vanished">%1 已是另一个元素的句柄</translation>
    </message>
    <message>
        <source>an element of a kind that can&apos;t be stored</source>
        <translation type="vanished">无法存储的元素类型</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">“%1”不在可用值之中：%2</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be part of a group</source>
        <translation type="vanished">“%1”不能作为组的成员</translation>
    </message>
    <message>
        <source>a part of a frame of a kind that can&apos;t be stored</source>
        <translation type="vanished">无法存储的边框组成部分</translation>
    </message>
    <message>
        <source>“%1” is not a paper form; “A4” and “Custom” are</source>
        <translation type="vanished">“%1”不是纸张规格；“A4”和“Custom”才是</translation>
    </message>
    <message>
        <source>needs at least one element</source>
        <translation type="vanished">至少需要一个元素</translation>
    </message>
</context>
<context>
    <name>ElementClip</name>
    <message>
        <source>is not “%1”, so these are no elements</source>
        <translation>不是“%1”，因此这些不是元素</translation>
    </message>
    <message>
        <source>the elements were copied by a newer version of Plotvane, as version %1</source>
        <translation>这些元素由较新版本的 Plotvane 复制，版本为 %1</translation>
    </message>
    <message>
        <source>The elements take %1 MB, and the clipboard takes %2; copy fewer of them, or link their pictures.</source>
        <translation>这些元素占 %1 MB，而剪贴板可容纳 %2 MB；请少复制一些，或改为链接图片。</translation>
    </message>
    <message>
        <source>The elements can&apos;t be copied: %1.</source>
        <translation>无法复制元素：%1。</translation>
    </message>
    <message>
        <source>The elements on the clipboard can&apos;t be read: %1; copy them anew.</source>
        <translation>无法读取剪贴板中的元素：%1；请重新复制。</translation>
    </message>
</context>
<context>
    <name>ElementFields</name>
    <message>
        <source>%1 is another element&apos;s handle already</source>
        <translation>%1 已是另一个元素的句柄</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be part of a group</source>
        <translation>“%1”不能作为组的成员</translation>
    </message>
    <message>
        <source>data frames and surrounds can&apos;t lie on a map, only on the page</source>
        <translation>数据框和地图整饰要素只能位于页面上，不能位于地图上</translation>
    </message>
    <message>
        <source>an element of a kind that can&apos;t be stored</source>
        <translation>无法存储的元素类型</translation>
    </message>
</context>
<context>
    <name>ElementModel</name>
    <message>
        <source>Hidden; click, or press Space, to show it</source>
        <translation>已隐藏；点击或按空格键将其显示</translation>
    </message>
    <message>
        <source>Click, or press Space, to hide it</source>
        <translation>点击或按空格键将其隐藏</translation>
    </message>
    <message>
        <source>Locked; click, or press Shift+Space, to unlock it</source>
        <translation>已锁定；点击或按 Shift+空格键解锁</translation>
    </message>
    <message>
        <source>Click, or press Shift+Space, to lock it: the mouse then leaves it alone</source>
        <translation>点击或按 Shift+空格键锁定：鼠标便不再触动它</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Restack the selected elements</source>
        <translation>调整所选元素的叠放顺序</translation>
    </message>
</context>
<context>
    <name>ElementSettings</name>
    <message>
        <source>needs at least %1 points</source>
        <translation type="vanished">至少需要 %1 个点</translation>
    </message>
    <message>
        <source>holds a coordinate beyond %1</source>
        <translation type="vanished">含有超出 %1 的坐标</translation>
    </message>
    <message>
        <source>needs at least one ring</source>
        <translation type="vanished">至少需要一个环</translation>
    </message>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax</source>
        <translation>必须是 xmin, ymin, xmax, ymax，且 xmin ≤ xmax、ymin ≤ ymax</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation>组嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>needs at least one element</source>
        <translation type="vanished">至少需要一个元素</translation>
    </message>
    <message>
        <source>another data frame shows this map already</source>
        <translation>另一个数据框已显示此地图</translation>
    </message>
    <message>
        <source>is no picture; it begins with “data:image/png;base64,”, or with jpeg, tiff, webp or svg+xml in place of png, and goes on with the file in base 64</source>
        <translation>不是图片；它以“data:image/png;base64,”开头，或以 jpeg、tiff、webp 或 svg+xml 代替 png，其后是 base64 编码的文件</translation>
    </message>
    <message>
        <source>%1 is no placeholder and stands as written; there are [%2].</source>
        <translation>%1 不是占位符，将按原样显示；可用的有 [%2]。</translation>
    </message>
    <message>
        <source>is the map of this data frame; enter the number of another one</source>
        <translation>是此数据框自己的地图；请输入另一个地图的编号</translation>
    </message>
</context>
<context>
    <name>ExportArguments</name>
    <message>
        <source>The format, whatever the suffix: %1.</source>
        <translation>输出格式，不论后缀：%1。</translation>
    </message>
    <message>
        <source>Pixels per inch of paper, 1 to %1; %2 if not given.</source>
        <translation>每英寸纸张的像素数，1 到 %1；默认为 %2。</translation>
    </message>
    <message>
        <source>The image&apos;s width in pixels, in place of --dpi.</source>
        <translation>图像宽度（像素），代替 --dpi。</translation>
    </message>
    <message>
        <source>How the pixels are packed: %1.</source>
        <translation>像素的压缩方式：%1。</translation>
    </message>
    <message>
        <source>Of a JPEG or WebP, 1 to 100; %1 if not given.</source>
        <translation>JPEG 或 WebP 的质量，1 到 100；默认为 %1。</translation>
    </message>
    <message>
        <source>Leave out the page&apos;s background, in a PNG, TIFF or WebP.</source>
        <translation>省略页面背景（PNG、TIFF 或 WebP）。</translation>
    </message>
    <message>
        <source>Cut the image to the elements of the page.</source>
        <translation>将图像裁剪到页面元素的范围。</translation>
    </message>
    <message>
        <source>Tell where on the Earth the data frame of that name lies: in a TIFF itself, else by a world file beside the image.</source>
        <translation>写明该名称的数据框在地球上的位置：TIFF 写在文件内，其他格式写入图像旁的坐标文件。</translation>
    </message>
    <message>
        <source>export: --format takes one of %1, not &quot;%2&quot;.</source>
        <translation>export：--format 只接受 %1 之一，而不是 &quot;%2&quot;。</translation>
    </message>
    <message>
        <source>export: %1: &quot;.%2&quot; names no image format; use one of %3, or pass --format tiff or another.</source>
        <translation>export：%1：&quot;.%2&quot; 不是图像格式；请使用 %3 之一，或指定 --format tiff 等。</translation>
    </message>
    <message>
        <source>export: --%1 takes a whole number from 1 to %2, not &quot;%3&quot;.</source>
        <translation>export：--%1 只接受 1 到 %2 的整数，而不是 &quot;%3&quot;。</translation>
    </message>
    <message>
        <source>export: give either --dpi or --width.</source>
        <translation>export：--dpi 和 --width 只能指定其一。</translation>
    </message>
    <message>
        <source>export: a %1 takes a --dpi of at most %2; its shapes are as fine at any.</source>
        <translation type="vanished">export：%1 的 --dpi 最大为 %2；其图形在任何值下都同样精细。</translation>
    </message>
    <message>
        <source>export: --%1 is for images; a %2 has none of it.</source>
        <translation type="vanished">export：--%1 只用于图像，不适用于 %2。</translation>
    </message>
    <message>
        <source>export: --transparent needs a PNG, TIFF or WebP; a %1 can&apos;t be transparent.</source>
        <translation type="vanished">export：--transparent 需要 PNG、TIFF 或 WebP；%1 不支持透明。</translation>
    </message>
    <message>
        <source>export: --quality is for a JPEG or a WebP that is not lossless.</source>
        <translation>export：--quality 只用于 JPEG 或有损的 WebP。</translation>
    </message>
    <message>
        <source>export: a %1 is packed in one way only; leave out --compress.</source>
        <translation type="vanished">export：%1 只有一种压缩方式；请去掉 --compress。</translation>
    </message>
    <message>
        <source>export: of a %1, --compress takes one of %2, not &quot;%3&quot;.</source>
        <translation type="vanished">export：对于 %1，--compress 只接受 %2 之一，而不是 &quot;%3&quot;。</translation>
    </message>
    <message>
        <source>What texts are in a PDF or SVG: &quot;text&quot;, or &quot;shapes&quot;, the outlines of letters that need no fonts; &quot;text&quot; if not given.</source>
        <translation>PDF 或 SVG 中的文字形式：&quot;text&quot;，或 &quot;shapes&quot;（无需字体的字母轮廓）；未指定时为 &quot;text&quot;。</translation>
    </message>
    <message>
        <source>export: --text takes &quot;text&quot; or &quot;shapes&quot;, not &quot;%1&quot;.</source>
        <translation>export：--text 只接受 &quot;text&quot; 或 &quot;shapes&quot;，而不是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>export: --text is for a PDF or SVG.</source>
        <translation>export：--text 用于 PDF 或 SVG。</translation>
    </message>
    <message>
        <source>Of a PDF: draw what lies over the page&apos;s edges so many millimetres beyond them.</source>
        <translation>用于 PDF：将超出页面边缘的内容向外多画这么多毫米。</translation>
    </message>
    <message>
        <source>Of a PDF: mark where the paper is to be cut.</source>
        <translation>用于 PDF：标出纸张的裁切位置。</translation>
    </message>
    <message>
        <source>Of a PDF: the ICC profile of the device that it is meant for, in place of sRGB.</source>
        <translation>用于 PDF：目标设备的 ICC 配置文件，代替 sRGB。</translation>
    </message>
    <message>
        <source>export: --bleed takes millimetres from 0 to %1, not &quot;%2&quot;.</source>
        <translation>export：--bleed 取 0 到 %1 的毫米数，而不是“%2”。</translation>
    </message>
    <message>
        <source>export: --%1 is for a PDF alone; leave it out, or write a .pdf.</source>
        <translation>export：--%1 仅用于 PDF；请去掉它，或写入 .pdf。</translation>
    </message>
    <message>
        <source>export: %1 takes a --dpi of at most %2; its shapes are as fine at any.</source>
        <translation>export：%1 的 --dpi 最大为 %2；其图形在任何值下都同样精细。</translation>
    </message>
    <message>
        <source>export: --%1 is for images; it means nothing to %2.</source>
        <translation>export：--%1 只用于图像，不适用于 %2。</translation>
    </message>
    <message>
        <source>export: --transparent needs a PNG, TIFF or WebP; %1 can&apos;t be transparent.</source>
        <translation>export：--transparent 需要 PNG、TIFF 或 WebP；%1 不支持透明。</translation>
    </message>
    <message>
        <source>export: %1 is packed in one way only; leave out --compress.</source>
        <translation>export：%1 只有一种压缩方式；请去掉 --compress。</translation>
    </message>
    <message>
        <source>export: of %1, --compress takes one of %2, not &quot;%3&quot;.</source>
        <translation>export：对于 %1，--compress 只接受 %2 之一，而不是 &quot;%3&quot;。</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export as %1</source>
        <translation>导出为 %1</translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="vanished">导出</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Name the file to write.</source>
        <translation>请指定要写入的文件。</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>Replace it?</source>
        <translation>要替换吗？</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>导出(&amp;X)</translation>
    </message>
</context>
<context>
    <name>ExportSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation>.kdx 文档。</translation>
    </message>
    <message>
        <source>Pixels per inch of paper, 1 to %1; %2 if not given.</source>
        <translation type="vanished">纸面每英寸的像素数，1 到 %1；不给出时为 %2。</translation>
    </message>
    <message>
        <source>Print neither the path nor the progress.</source>
        <translation>既不输出路径也不输出进度。</translation>
    </message>
    <message>
        <source>Draw the page also where a data source can&apos;t be read; its layer stays empty.</source>
        <translation type="vanished">即使数据源无法读取也绘制页面；相应图层留空。</translation>
    </message>
    <message>
        <source>export: --dpi takes a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation type="vanished">export: --dpi 须为 1 到 %1 的整数，而不是“%2”。</translation>
    </message>
    <message>
        <source>%1: this GDAL can&apos;t write %2; choose another format, or install a GDAL that can.</source>
        <translation type="vanished">%1：此 GDAL 无法写入 %2；请选择其他格式，或安装支持该格式的 GDAL。</translation>
    </message>
    <message>
        <source>%1: data sources could not be read, so the page would not be whole; mend them, or pass --allow-missing.</source>
        <translation>%1：部分数据源无法读取，页面将不完整；请修复数据源，或使用 --allow-missing。</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw.</source>
        <translation type="vanished">%1：文档没有可绘制的页面。</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation type="vanished">%1 未写入：已中断。</translation>
    </message>
    <message>
        <source>The file to write; its suffix names the format: %1. Without one it is a TIFF.</source>
        <translation>要写入的文件；扩展名决定格式：%1。没有扩展名时为 TIFF。</translation>
    </message>
    <message>
        <source>The format, whatever the suffix: %1.</source>
        <translation type="vanished">格式，不论扩展名：%1。</translation>
    </message>
    <message>
        <source>export: --format takes one of %1, not &quot;%2&quot;.</source>
        <translation type="vanished">export：--format 可取 %1，而不是“%2”。</translation>
    </message>
    <message>
        <source>export: %1: &quot;.%2&quot; names no image format; use one of %3, or pass --format tiff or another.</source>
        <translation type="vanished">export：%1：“.%2”不是图像格式的扩展名；请使用 %3 之一，或加上 --format tiff 等选项。</translation>
    </message>
    <message>
        <source>Draw the page also where a data source or a picture can&apos;t be read, or not to its end.</source>
        <translation>即使数据源或图片无法读取或无法完整读取，也绘制页面。</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw; give it one, such as &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</source>
        <translation type="vanished">%1：文档没有可绘制的页面；请给它一个，例如 &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}。</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation type="vanished">未写入 %1：%2。</translation>
    </message>
    <message>
        <source>export: a PDF takes a --dpi of at most %1; its shapes are as fine at any.</source>
        <translation type="vanished">export：PDF 的 --dpi 最多为 %1；无论取值多少，其图形都同样精细。</translation>
    </message>
</context>
<context>
    <name>FeatureEvaluator</name>
    <message>
        <source>The size “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>无法理解 %2 的大小表达式“%1”，符号保持自身大小：%3。</translation>
    </message>
    <message>
        <source>The colour “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>无法理解 %2 的颜色表达式“%1”，符号保持自身颜色：%3。</translation>
    </message>
    <message>
        <source>The angle “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>无法理解 %2 的角度表达式“%1”，符号保持自身角度：%3。</translation>
    </message>
    <message>
        <source>The filter “%1” of rule %2 of %3 is not understood, so that the rule fits nothing: %4.</source>
        <translation>无法理解 %3 的规则 %2 的过滤条件“%1”，该规则不匹配任何要素：%4。</translation>
    </message>
</context>
<context>
    <name>FeatureReader</name>
    <message>
        <source>the file “%1”</source>
        <translation>文件“%1”</translation>
    </message>
    <message>
        <source>layer “%2” of the file “%1”</source>
        <translation>文件“%1”的图层“%2”</translation>
    </message>
    <message>
        <source>There is no field “%1” in %2; it has: %3.</source>
        <translation>%2中没有字段“%1”；其中有：%3。</translation>
    </message>
    <message>
        <source>The coordinate system of %1 %2.</source>
        <translation>%1的坐标系：%2。</translation>
    </message>
    <message>
        <source>No coordinate system is known for %1; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">%1的坐标系未知，其坐标按地图坐标处理。请在数据源的“coordinateSystem”字段中给出坐标系。</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be projected to the map&apos;s coordinate system: %2.</source>
        <translation>%1的坐标无法投影到地图坐标系：%2。</translation>
    </message>
    <message>
        <source>Not all of %1 could be placed on the map: %2.</source>
        <translation>%1未能全部放置到地图上：%2。</translation>
    </message>
    <message>
        <source>The filter “%1” of %2 is not understood: %3.</source>
        <translation>无法理解%2的筛选条件“%1”：%3。</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>未能读取 %1 的全部内容：%2。</translation>
    </message>
    <message>
        <source>There is nothing to draw in %1: its rows have no geometry, and no columns of coordinates are known. Name such columns in “xField” and “yField”, or one of well-known text in “geometryField”, or join it as a table to a layer; it has: %2.</source>
        <translation>%1中没有可绘制的内容：其行没有几何，也没有已知的坐标列。请在“xField”和“yField”中指定坐标列，或在“geometryField”中指定 WKT 列，或将其作为表连接到图层；它有：%2。</translation>
    </message>
    <message>
        <source>Nothing of %1 lies where the map&apos;s coordinate system shows the globe, so that the layer is empty; give the map another coordinate system, or the source the one that it has in truth.</source>
        <translation type="vanished">%1 的内容全部位于地图坐标系所显示的地球范围之外，因此该图层为空；请为地图选择其他坐标系，或为数据源指定其真实的坐标系。</translation>
    </message>
    <message>
        <source>The globe can&apos;t be projected to the map&apos;s coordinate system: %1.</source>
        <translation type="vanished">无法将地球投影到地图的坐标系：%1。</translation>
    </message>
    <message>
        <source>The reading of %1 was stopped.</source>
        <translation>%1 的读取已中止。</translation>
    </message>
    <message>
        <source>the globe</source>
        <translation>地球</translation>
    </message>
    <message>
        <source>The coordinate system of %1 names a file by its path, which is not opened; give another one in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">%1 的坐标系按路径引用了一个文件，该文件不会被打开；请在数据源的字段“coordinateSystem”中指定另一个坐标系。</translation>
    </message>
    <message>
        <source>the table “%1” of the connection “%2”</source>
        <translation>连接“%2”的表“%1”</translation>
    </message>
    <message>
        <source>The coordinate system of %1 can&apos;t be read: %2. Mend the file, or give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>无法读取%1的坐标系：%2。请修复文件，或在数据源的“coordinateSystem”字段中给出坐标系。</translation>
    </message>
    <message>
        <source>To read of %1 only what a map shows, it was indexed in “%2”; that is done once, and again where the file changes.</source>
        <translation>为了只读取地图所显示的部分，已在“%2”中为%1建立索引；只需一次，文件改变后会重新建立。</translation>
    </message>
    <message>
        <source>%1 is read whole, since it can&apos;t be indexed in “%2”: %3.</source>
        <translation>将完整读取%1，因为无法在“%2”中为其建立索引：%3。</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be degrees, as those of its coordinate system are (GeoJSON that names none is in degrees); they are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">%1 的坐标不可能是度，而其坐标系的坐标应当是度（未指定坐标系的 GeoJSON 以度为单位）；现按地图的坐标处理。请在数据源的“coordinateSystem”字段中指定坐标系。</translation>
    </message>
    <message>
        <source>Nothing says how the texts of %1 are encoded; they are taken as Windows-1252. A file “%2” beside it with the name of the encoding would say so.</source>
        <translation type="vanished">没有任何信息说明 %1 的文本编码；现按 Windows-1252 处理。可在旁边放一个写有编码名称的文件“%2”加以说明。</translation>
    </message>
    <message>
        <source>Texts of %1 are not encoded as its format has it, so that � stands for letters; save it anew, as UTF-8 where there is a choice.</source>
        <translation>%1的文本编码与其格式不符，因此以 � 代替字母；请重新保存，如可选择请用 UTF-8。</translation>
    </message>
    <message>
        <source>How the texts of %1 are encoded is not said, or not truly; they are taken as Windows-1252. A file beside the table, with its name and the suffix “.cpg”, would say so with the name of the encoding in it.</source>
        <translation>没有说明或错误地说明了%1的文本编码；按 Windows-1252 读取。在表旁放置同名、后缀为“.cpg”的文件，并在其中写上编码名称，即可说明编码。</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates, which can&apos;t be degrees, are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">%1 所指的坐标系未知（%2）；其坐标不可能是度，因此按地图的坐标处理。请在数据源的字段“coordinateSystem”中给出坐标系。</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">%1 所指的坐标系未知（%2）；其坐标按经度和纬度处理。请在数据源的字段“coordinateSystem”中给出坐标系。</translation>
    </message>
    <message>
        <source>The coordinates of %1 look like degrees, and its coordinate system counts in metres. If they are, give the system in the source&apos;s field “coordinateSystem”, such as EPSG:4326.</source>
        <translation type="vanished">%1 的坐标看起来像度，而其坐标系以米为单位。如果确实是度，请在数据源的字段“coordinateSystem”中给出坐标系，例如 EPSG:4326。</translation>
    </message>
    <message>
        <source>The table of %1, “%2”, is missing, so that its features have no attributes; put it beside the file.</source>
        <translation>%1 所属的表“%2”缺失，因此其要素没有属性；请将它放在该文件旁。</translation>
    </message>
</context>
<context>
    <name>FeatureScan</name>
    <message>
        <source>%1: the filter “%2” is not understood: %3.</source>
        <translation>%1：无法理解筛选条件“%2”：%3。</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>未能读取 %1 的全部内容：%2。</translation>
    </message>
</context>
<context>
    <name>FeatureTable</name>
    <message>
        <source>The condition “%1” is not understood: %2.</source>
        <translation>条件“%1”无法理解：%2。</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>未能读取 %1 的全部内容：%2。</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>line widths</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 个字符</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 个点</translation>
    </message>
</context>
<context>
    <name>FieldValues</name>
    <message>
        <source>There is no field “%1”; choose one of: %2.</source>
        <translation>没有字段“%1”；请从以下字段中选择：%2。</translation>
    </message>
    <message>
        <source>The layer&apos;s filter “%1” is not understood: %2; correct it first.</source>
        <translation>无法理解图层的过滤条件“%1”：%2；请先更正。</translation>
    </message>
    <message>
        <source>The layer&apos;s values can&apos;t be read: %1.</source>
        <translation>无法读取图层的值：%1。</translation>
    </message>
</context>
<context>
    <name>Fields</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>What the map is called.</source>
        <translation>地图的名称。</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>That of the map, as a code (“EPSG:8857”), WKT or a PROJ text.</source>
        <translation type="vanished">地图的坐标系，以代码（“EPSG:8857”）、WKT 或 PROJ 文本给出。</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side.</source>
        <translation type="vanished">地图显示的范围：左、下、右、上边。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>The layers of the map, the lowest first.</source>
        <translation>地图的图层，最底层在前。</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>The sheet.</source>
        <translation>纸张。</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Settings of the layout.</source>
        <translation>布局的设置。</translation>
    </message>
    <message>
        <source>Align to margins</source>
        <translation>对齐到页边距</translation>
    </message>
    <message>
        <source>Whether the alignment commands align to the page.</source>
        <translation type="vanished">对齐命令是否以页面为准。</translation>
    </message>
    <message>
        <source>Focus map</source>
        <translation>活动地图</translation>
    </message>
    <message>
        <source>The number of the map that new surrounds follow.</source>
        <translation type="vanished">新的地图整饰要素所跟随的地图的编号。</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>Elements that lie on the map, in map units.</source>
        <translation>位于地图上的元素，以地图单位计。</translation>
    </message>
    <message>
        <source>Relative paths</source>
        <translation>相对路径</translation>
    </message>
    <message>
        <source>Whether files are named relative to the document.</source>
        <translation>文件路径是否相对于文档。</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>The maps of the data frames.</source>
        <translation type="vanished">各数据框的地图。</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>What lies on the page, the lowest first.</source>
        <translation>页面上的内容，最底层在前。</translation>
    </message>
    <message>
        <source>What the element is called in lists and by the command line.</source>
        <translation>元素在列表和命令行中的名称。</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>句柄</translation>
    </message>
    <message>
        <source>The number of the element, which no other one has.</source>
        <translation type="vanished">元素的编号，与其他元素均不相同。</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>点标记</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>Data frame</source>
        <translation>数据框</translation>
    </message>
    <message>
        <source>Map surround</source>
        <translation>地图整饰要素</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>What kind of element it is.</source>
        <translation>元素的类型。</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>The vertices: x and y of the first, of the second, and so on.</source>
        <translation>各顶点：第一个的 x 和 y、第二个的 x 和 y，依此类推。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>The point at which it stands, from the lower left corner.</source>
        <translation type="vanished">所在的点，从左下角算起。</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>How it is drawn; without a symbol it is not.</source>
        <translation>绘制方式；没有符号则不绘制。</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>环</translation>
    </message>
    <message>
        <source>Closed lines that bound the area; one within another is a hole.</source>
        <translation>围成区域的闭合线；位于另一条之内的是孔洞。</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side, from the lower left corner.</source>
        <translation type="vanished">左、下、右、上边，从左下角算起。</translation>
    </message>
    <message>
        <source>What it says.</source>
        <translation>文本的内容。</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>How far the text is turned counterclockwise about its position.</source>
        <translation>文本绕其位置逆时针旋转的角度。</translation>
    </message>
    <message>
        <source>How the letters look.</source>
        <translation>文字的外观。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG or SVG), relative to the document.</source>
        <translation type="vanished">图片文件（PNG、JPEG 或 SVG），相对于文档。</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>成员</translation>
    </message>
    <message>
        <source>The elements of the group.</source>
        <translation type="vanished">组中的元素。</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Whether the mouse leaves the data frame and its map alone.</source>
        <translation type="vanished">是否防止用鼠标改动数据框及其地图。</translation>
    </message>
    <message>
        <source>Grids</source>
        <translation>格网</translation>
    </message>
    <message>
        <source>Grids over the map.</source>
        <translation>地图上的格网。</translation>
    </message>
    <message>
        <source>What explains the map: a legend, a scale bar, a scale text or a north arrow.</source>
        <translation>用于说明地图的要素：图例、比例尺、比例尺文字或指北针。</translation>
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
        <source>Gap</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>How far it stands outside the frame; inside where it is negative.</source>
        <translation>从边框向外的距离；负值表示向内。</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>How round the corners are: 0 is square, 100 as round as they can be.</source>
        <translation type="vanished">各角的圆角程度：0 为直角，100 为最大圆角。</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>How it is filled.</source>
        <translation type="vanished">填充方式。</translation>
    </message>
    <message>
        <source>How the border is drawn.</source>
        <translation type="vanished">边框的绘制方式。</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>How far the shadow lies to the right and upwards.</source>
        <translation>阴影向右和向上的偏移量。</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>The line around it.</source>
        <translation>四周的线。</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>The area behind it.</source>
        <translation>后面的区域。</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>The shadow that it throws.</source>
        <translation>投下的阴影。</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>The form of the paper, as in “A4”, or “Custom” for a size of its own.</source>
        <translation>纸张规格，如“A4”；自定义大小时为“Custom”。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>The width of the sheet when it stands upright.</source>
        <translation>纸张纵向放置时的宽度。</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>The height of the sheet when it stands upright.</source>
        <translation>纸张纵向放置时的高度。</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Whether the sheet stands upright or lies.</source>
        <translation type="vanished">纸张是纵向还是横向放置。</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>The file of the data, relative to the document.</source>
        <translation type="vanished">数据文件，相对于文档。</translation>
    </message>
    <message>
        <source>Layer of the file</source>
        <translation>文件中的图层</translation>
    </message>
    <message>
        <source>Its name in the file; the first one where it is empty.</source>
        <translation>图层在文件中的名称；留空时为第一个图层。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选条件</translation>
    </message>
    <message>
        <source>A condition on the attributes, as in “population &gt; 1000000”.</source>
        <translation type="vanished">针对属性的条件，如“population &gt; 1000000”。</translation>
    </message>
    <message>
        <source>Stands in for that of the file.</source>
        <translation type="vanished">替代文件的坐标系。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Where the data come from.</source>
        <translation>数据的来源。</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>How features are drawn.</source>
        <translation>要素的绘制方式。</translation>
    </message>
    <message>
        <source>What the layer is called.</source>
        <translation>图层的名称。</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Whether the layer shows.</source>
        <translation>是否显示图层。</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Texts at the features; without them, none are written.</source>
        <translation>要素旁的文字；没有此项则不标注。</translation>
    </message>
    <message>
        <source>What kind of layer it is.</source>
        <translation>图层的类型。</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Scale text</source>
        <translation>比例尺文字</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>指北针</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>The number of the map in the document; the first one is 0.</source>
        <translation type="vanished">地图在文档中的编号；第一个为 0。</translation>
    </message>
    <message>
        <source>What explains the map.</source>
        <translation>用于说明地图的要素。</translation>
    </message>
    <message>
        <source>Whether there are labels.</source>
        <translation>是否有标注。</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>The attribute whose value is the text.</source>
        <translation>以其值作为文字的属性。</translation>
    </message>
    <message>
        <source>Attribute of the priority</source>
        <translation>优先级属性</translation>
    </message>
    <message>
        <source>Features with a higher number in it are labelled first.</source>
        <translation type="vanished">其中数值较大的要素先标注。</translation>
    </message>
    <message>
        <source>What is kept free around a label.</source>
        <translation>标注四周留出的空白。</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Letters of their own for features of a higher priority.</source>
        <translation>用于较高优先级要素的单独文字样式。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>起始值</translation>
    </message>
    <message>
        <source>The lowest priority of the class.</source>
        <translation type="vanished">该类的最低优先级。</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
    <message>
        <source>Labels of layers with a higher one are placed first.</source>
        <translation>优先级较高的图层先放置标注。</translation>
    </message>
    <message>
        <source>From scale</source>
        <translation>起始比例尺</translation>
    </message>
    <message>
        <source>It shows above this scale denominator; 0 is no limit.</source>
        <translation>比例尺分母大于此值时显示；0 表示无限制。</translation>
    </message>
    <message>
        <source>To scale</source>
        <translation>终止比例尺</translation>
    </message>
    <message>
        <source>It shows below this scale denominator; 0 is no limit.</source>
        <translation>比例尺分母小于此值时显示；0 表示无限制。</translation>
    </message>
    <message>
        <source>One symbol</source>
        <translation>单一符号</translation>
    </message>
    <message>
        <source>A symbol for each value</source>
        <translation>每个值一个符号</translation>
    </message>
    <message>
        <source>Symbols by a number</source>
        <translation>按数值分级的符号</translation>
    </message>
    <message>
        <source>Features that are drawn alike.</source>
        <translation>以相同方式绘制的要素。</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>What a legend calls them.</source>
        <translation type="vanished">它们在图例中的名称。</translation>
    </message>
    <message>
        <source>How they are drawn.</source>
        <translation type="vanished">它们的绘制方式。</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The values of the attribute that belong to the class.</source>
        <translation type="vanished">属于该类的属性值。</translation>
    </message>
    <message>
        <source>The lowest number of the class; it ends where the next one begins.</source>
        <translation type="vanished">该类的最小数值；到下一类的起点为止。</translation>
    </message>
    <message>
        <source>Symbol of the others</source>
        <translation>其他要素的符号</translation>
    </message>
    <message>
        <source>How features are drawn that are in no class; without a symbol they are not.</source>
        <translation>不属于任何类的要素的绘制方式；没有符号则不绘制。</translation>
    </message>
    <message>
        <source>Label of the others</source>
        <translation>其他要素的标签</translation>
    </message>
    <message>
        <source>What a legend calls features that are in no class.</source>
        <translation>不属于任何类的要素在图例中的名称。</translation>
    </message>
    <message>
        <source>Whether all features are drawn alike, or by the value of an attribute.</source>
        <translation type="vanished">所有要素以相同方式绘制，还是按属性值绘制。</translation>
    </message>
    <message>
        <source>The attribute whose value decides.</source>
        <translation>以其值为准的属性。</translation>
    </message>
    <message>
        <source>Alternating</source>
        <translation>交替</translation>
    </message>
    <message>
        <source>Two rows</source>
        <translation>双行</translation>
    </message>
    <message>
        <source>Line with ticks</source>
        <translation>带刻度的线</translation>
    </message>
    <message>
        <source>Metres or kilometres</source>
        <translation>米或千米</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>米</translation>
    </message>
    <message>
        <source>Kilometres</source>
        <translation>千米</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>英里</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>海里</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>What stands above the legend; it may be empty.</source>
        <translation>图例上方的文字；可以留空。</translation>
    </message>
    <message>
        <source>Text of the title</source>
        <translation>标题文字</translation>
    </message>
    <message>
        <source>How the letters of the title look.</source>
        <translation type="vanished">标题文字的外观。</translation>
    </message>
    <message>
        <source>Text of the headings</source>
        <translation>小标题文字</translation>
    </message>
    <message>
        <source>How the name of a layer with several classes looks.</source>
        <translation type="vanished">含有多个类的图层的名称的外观。</translation>
    </message>
    <message>
        <source>Text of the entries</source>
        <translation>条目文字</translation>
    </message>
    <message>
        <source>How the letters of the entries look.</source>
        <translation type="vanished">条目文字的外观。</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>不列出</translation>
    </message>
    <message>
        <source>The names of layers that the legend does not list.</source>
        <translation>图例中不列出的图层的名称。</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>How the bar is drawn.</source>
        <translation type="vanished">比例尺的绘制方式。</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>What the bar counts.</source>
        <translation type="vanished">比例尺所用的单位。</translation>
    </message>
    <message>
        <source>The height of the bar.</source>
        <translation>比例尺的高度。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>The colour of the outline and of every second part.</source>
        <translation type="vanished">轮廓线和每隔一段的颜色。</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>第二颜色</translation>
    </message>
    <message>
        <source>The colour of the other parts.</source>
        <translation>其余各段的颜色。</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>格式文本</translation>
    </message>
    <message>
        <source>The text, with %1 where the scale stands.</source>
        <translation type="vanished">文本，以 %1 表示比例尺所在处。</translation>
    </message>
    <message>
        <source>The marker that points north.</source>
        <translation type="vanished">指向北方的点标记。</translation>
    </message>
    <message>
        <source>True north</source>
        <translation>真北</translation>
    </message>
    <message>
        <source>Whether it points to true north at the map&apos;s centre, and not upwards.</source>
        <translation type="vanished">是否指向地图中心处的真北，而不是正上方。</translation>
    </message>
    <message>
        <source>What the grid is called.</source>
        <translation>格网的名称。</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>The distance of two lines; 0 chooses one for the map&apos;s scale.</source>
        <translation type="vanished">两条线之间的间隔；0 表示按地图比例尺自动选择。</translation>
    </message>
    <message>
        <source>Whether the degrees stand beside the lines.</source>
        <translation type="vanished">线旁是否标出度数。</translation>
    </message>
    <message>
        <source>How the meridians and parallels are drawn.</source>
        <translation type="vanished">经线和纬线的绘制方式。</translation>
    </message>
    <message>
        <source>Text of the labels</source>
        <translation>标注文字</translation>
    </message>
    <message>
        <source>How the letters of the labels look.</source>
        <translation type="vanished">标注文字的外观。</translation>
    </message>
    <message>
        <source>What the symbol is called.</source>
        <translation>符号的名称。</translation>
    </message>
    <message>
        <source>The symbol itself.</source>
        <translation type="vanished">符号本身。</translation>
    </message>
    <message>
        <source>What the category is called; a slash puts it into another.</source>
        <translation type="vanished">类别的名称；用斜线将其置于另一类别之下。</translation>
    </message>
    <message>
        <source>The symbols of the category.</source>
        <translation>该类别中的符号。</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Groups of symbols, in the order in which they are shown.</source>
        <translation>符号的分组，按显示顺序排列。</translation>
    </message>
    <message>
        <source>What kind of symbol it is.</source>
        <translation>符号的类型。</translation>
    </message>
    <message>
        <source>Picture marker</source>
        <translation>图片点标记</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>实线</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>虚线</translation>
    </message>
    <message>
        <source>Dots</source>
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
        <source>Flat</source>
        <translation>平头</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>方形</translation>
    </message>
    <message>
        <source>Pointed</source>
        <translation>尖角</translation>
    </message>
    <message>
        <source>Bevelled</source>
        <translation>斜角</translation>
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
        <source>Forward diagonals</source>
        <translation>右斜线</translation>
    </message>
    <message>
        <source>Backward diagonals</source>
        <translation>左斜线</translation>
    </message>
    <message>
        <source>Horizontal and vertical lines</source>
        <translation>水平线和垂直线</translation>
    </message>
    <message>
        <source>Both diagonals</source>
        <translation>双向斜线</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>菱形</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Diagonal cross</source>
        <translation>斜十字</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星形</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶端</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>基线</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底端</translation>
    </message>
    <message>
        <source>Whether the line is solid, dashed or not drawn at all.</source>
        <translation>线是实线、虚线还是不绘制。</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>线的颜色。</translation>
    </message>
    <message>
        <source>The width of the line; one of width 0 is not drawn.</source>
        <translation>线的宽度；宽度为 0 时不绘制。</translation>
    </message>
    <message>
        <source>How far the line is moved to the left of its direction; to the right where it is negative.</source>
        <translation>线向其前进方向左侧的偏移量；负值表示向右。</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>端点</translation>
    </message>
    <message>
        <source>How the line and its dashes end.</source>
        <translation>线及其各段短划的端点形状。</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>拐角</translation>
    </message>
    <message>
        <source>How the line turns at a vertex.</source>
        <translation>线在顶点处的转折形状。</translation>
    </message>
    <message>
        <source>Limit of points</source>
        <translation>尖角限制</translation>
    </message>
    <message>
        <source>How far a pointed corner may reach before it is bevelled.</source>
        <translation>尖角最多可伸出多远，超出则改为斜角。</translation>
    </message>
    <message>
        <source>Whether the area is filled whole, hatched or not at all.</source>
        <translation>区域是完全填充、用斜线等线条填充还是不填充。</translation>
    </message>
    <message>
        <source>The colour of the filling.</source>
        <translation>填充的颜色。</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>轮廓线</translation>
    </message>
    <message>
        <source>The line around the area; without one, none is drawn.</source>
        <translation>区域四周的线；没有此项则不绘制。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>The longer side of the marker; one of size 0 is not drawn.</source>
        <translation>点标记较长的一边；大小为 0 时不绘制。</translation>
    </message>
    <message>
        <source>How far the marker is turned counterclockwise.</source>
        <translation>点标记逆时针旋转的角度。</translation>
    </message>
    <message>
        <source>The shape of the marker.</source>
        <translation>点标记的形状。</translation>
    </message>
    <message>
        <source>The colour of the marker.</source>
        <translation>点标记的颜色。</translation>
    </message>
    <message>
        <source>Colour of the outline</source>
        <translation>轮廓线颜色</translation>
    </message>
    <message>
        <source>The colour of the line around the marker.</source>
        <translation>点标记四周的线的颜色。</translation>
    </message>
    <message>
        <source>Width of the outline</source>
        <translation>轮廓线宽度</translation>
    </message>
    <message>
        <source>The width of the line around the marker; 0 for none.</source>
        <translation>点标记四周的线的宽度；0 表示没有。</translation>
    </message>
    <message>
        <source>The picture as SVG; its view box is the marker.</source>
        <translation type="vanished">SVG 格式的图片；其 viewBox 即为点标记。</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>The name of the font&apos;s family, as in “DejaVu Sans”.</source>
        <translation>字体族的名称，如“DejaVu Sans”。</translation>
    </message>
    <message>
        <source>The size of the font.</source>
        <translation>字体的大小。</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation>文字是否为粗体。</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Whether the letters are slanted.</source>
        <translation>文字是否倾斜。</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>字间距</translation>
    </message>
    <message>
        <source>What is added between two letters.</source>
        <translation>两个字符之间增加的距离。</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>行间距</translation>
    </message>
    <message>
        <source>The distance of two lines, as a multiple of the font&apos;s own.</source>
        <translation>两行之间的距离，为字体自身行距的倍数。</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>文字的颜色。</translation>
    </message>
    <message>
        <source>Halo</source>
        <translation>光晕</translation>
    </message>
    <message>
        <source>How far the halo reaches beyond the letters; 0 for none.</source>
        <translation>光晕超出文字的距离；0 表示没有。</translation>
    </message>
    <message>
        <source>Colour of the halo</source>
        <translation>光晕颜色</translation>
    </message>
    <message>
        <source>The colour behind the letters.</source>
        <translation>文字后面的颜色。</translation>
    </message>
    <message>
        <source>Horizontal alignment</source>
        <translation>水平对齐</translation>
    </message>
    <message>
        <source>Which part of a line stands at the position.</source>
        <translation>一行文字的哪一部分位于该位置。</translation>
    </message>
    <message>
        <source>Vertical alignment</source>
        <translation>垂直对齐</translation>
    </message>
    <message>
        <source>Which part of the text&apos;s height stands at the position.</source>
        <translation>文本高度的哪一部分位于该位置。</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 不在 %2 和 %3 之间</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2</source>
        <translation>文本有 %1 个字符；最多允许 %2 个</translation>
    </message>
    <message>
        <source>holds %1 entries; at most %2</source>
        <translation>含有 %1 个条目；最多允许 %2 个</translation>
    </message>
    <message>
        <source>holds an odd count of numbers</source>
        <translation>数字个数为奇数</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真或假</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>应为%1，实际为%2</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>%1 is not a whole number</source>
        <translation>%1 不是整数</translation>
    </message>
    <message>
        <source>expected %1 numbers, found %2</source>
        <translation>应有 %1 个数字，实际有 %2 个</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation>“%1”不在可用值之中：%2</translation>
    </message>
    <message>
        <source>%1 is a choice without a name</source>
        <translation>%1 是没有名称的选项</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>What the file is.</source>
        <translation>文件的类别。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The version of the format.</source>
        <translation type="vanished">格式的版本。</translation>
    </message>
    <message>
        <source>Map document</source>
        <translation>地图文档</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Style library</source>
        <translation>样式库</translation>
    </message>
    <message>
        <source>is empty; enter a name</source>
        <translation>为空；请给出名称</translation>
    </message>
    <message>
        <source>holds %1 entries; at least %2</source>
        <translation>含有 %1 个条目；至少需要 %2 个</translation>
    </message>
    <message>
        <source>needs at least %1 points</source>
        <translation>至少需要 %1 个点</translation>
    </message>
    <message>
        <source>That of the map: a code as in “EPSG:8857”, WKT or a PROJ text; empty for plain coordinates in metres.</source>
        <translation>地图的坐标系：代码（如“EPSG:8857”）、WKT 或 PROJ 文本；为空表示以米为单位的平面坐标。</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side. It is centred in the data frame and widened to its shape.</source>
        <translation type="vanished">地图显示的范围：左、下、右、上边。它在数据框中居中，并按其形状扩展。</translation>
    </message>
    <message>
        <source>Whether elements are aligned with the edges of the page, and not with each other.</source>
        <translation>元素是否与页面边缘对齐，而不是彼此对齐。</translation>
    </message>
    <message>
        <source>The number of the map that insertion and navigation work on.</source>
        <translation>插入和导航所作用的地图编号。</translation>
    </message>
    <message>
        <source>The maps, which data frames and surrounds name by their number here, from 0.</source>
        <translation>地图；数据框和地图整饰以其在此处的编号（从 0 起）引用。</translation>
    </message>
    <message>
        <source>The number by which the element is known, which no other one has; 0 asks for a new one.</source>
        <translation>标识元素的编号，不与其他元素重复；0 表示分配新的编号。</translation>
    </message>
    <message>
        <source>The point of the map at which it stands.</source>
        <translation>其在地图上所在的点。</translation>
    </message>
    <message>
        <source>The point at which it stands, from the lower left corner of the page.</source>
        <translation>其所在的点，从页面左下角起算。</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side on the map.</source>
        <translation>在地图上的左、下、右、上边。</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side, from the lower left corner of the page.</source>
        <translation>左、下、右、上边，从页面左下角起算。</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG or SVG), relative to the document; without one, a crossed frame is drawn.</source>
        <translation type="vanished">图片文件（PNG、JPEG 或 SVG），相对于文档；没有时绘制带叉的框。</translation>
    </message>
    <message>
        <source>The elements of the group; groups lie at most 16 deep in each other.</source>
        <translation>组中的元素；组最多嵌套 16 层。</translation>
    </message>
    <message>
        <source>The radius of the corners, as a part of half the shorter side: 0 is square, 100 as round as they can be.</source>
        <translation>圆角半径占短边一半的比例：0 为直角，100 为最圆。</translation>
    </message>
    <message>
        <source>How it is filled; without a symbol it is not drawn.</source>
        <translation>如何填充；没有符号则不绘制。</translation>
    </message>
    <message>
        <source>How the border is drawn; without a symbol it is not.</source>
        <translation>边框如何绘制；没有符号则不绘制。</translation>
    </message>
    <message>
        <source>Whether the sheet stands upright or lies, which swaps its width and height.</source>
        <translation>纸张是竖放还是横放；横放时宽高互换。</translation>
    </message>
    <message>
        <source>The local file of the data (GeoPackage, GeoJSON, Shapefile or FlatGeobuf), relative to the document.</source>
        <translation type="vanished">数据的本地文件（GeoPackage、GeoJSON、Shapefile 或 FlatGeobuf），相对于文档。</translation>
    </message>
    <message>
        <source>A condition on the attributes as in SQL, “population &gt; 1000000”; empty for all features.</source>
        <translation>对属性的条件，写法同 SQL，如“population &gt; 1000000”；为空表示全部要素。</translation>
    </message>
    <message>
        <source>Stands in for that of the file where it is not empty.</source>
        <translation>不为空时代替文件自身的坐标系。</translation>
    </message>
    <message>
        <source>The number of the map that it shows, which no other data frame shows; the first one is 0.</source>
        <translation>所显示地图的编号，其他数据框不显示该地图；第一幅为 0。</translation>
    </message>
    <message>
        <source>The number of the map that it follows; −1 for none.</source>
        <translation>所跟随地图的编号；−1 表示没有。</translation>
    </message>
    <message>
        <source>A numeric attribute: features with a higher number are labelled first; without one, in their own order.</source>
        <translation type="vanished">数值属性：数值较大的要素先标注；没有时按要素自身的顺序。</translation>
    </message>
    <message>
        <source>The lowest priority of the class, above that of the class before.</source>
        <translation>该类的最低优先级，高于前一类的。</translation>
    </message>
    <message>
        <source>What a legend calls the features.</source>
        <translation>图例中要素的名称。</translation>
    </message>
    <message>
        <source>How the features are drawn.</source>
        <translation>要素如何绘制。</translation>
    </message>
    <message>
        <source>The values of the attribute that belong to the class; each belongs to one class only.</source>
        <translation>属于该类的属性值；每个值只属于一个类。</translation>
    </message>
    <message>
        <source>What a legend calls the features; their values where it is missing.</source>
        <translation>图例中要素的名称；缺省时为其各个值。</translation>
    </message>
    <message>
        <source>The lowest number of the class, above that of the class before; it ends where the next one begins.</source>
        <translation>该类的最小数，大于前一类的；到下一类开始处为止。</translation>
    </message>
    <message>
        <source>One symbol for all features, one for each value of an attribute, or one for each range of a numeric attribute.</source>
        <translation type="vanished">所有要素用一个符号、属性的每个值用一个符号，或数值属性的每个区间用一个符号。</translation>
    </message>
    <message>
        <source>How the letters of the title look; without a symbol bold and 12 points high.</source>
        <translation>标题文字的样子；没有符号时为粗体 12 磅。</translation>
    </message>
    <message>
        <source>How the name of a layer with several classes looks; without a symbol bold and 9 points high.</source>
        <translation>有多个类的图层名称的样子；没有符号时为粗体 9 磅。</translation>
    </message>
    <message>
        <source>How the letters of the entries look; without a symbol 8 points high.</source>
        <translation>条目文字的样子；没有符号时为 8 磅。</translation>
    </message>
    <message>
        <source>How the bar is drawn: as one row of boxes, as two, or as a line with ticks.</source>
        <translation>比例尺如何绘制：一行方格、两行方格，或带刻度的线。</translation>
    </message>
    <message>
        <source>What the bar counts; automatic is metres, or kilometres where each division is one at least.</source>
        <translation>比例尺的单位；自动为米，每格至少一千米时为千米。</translation>
    </message>
    <message>
        <source>The colour of outlines, of ticks and of every second part.</source>
        <translation>轮廓、刻度和每隔一段的颜色。</translation>
    </message>
    <message>
        <source>How the letters look; without a symbol 8 points high.</source>
        <translation>文字的样子；没有符号时为 8 磅。</translation>
    </message>
    <message>
        <source>How the letters look; without a symbol 12 points high.</source>
        <translation>文字的样子；没有符号时为 12 磅。</translation>
    </message>
    <message>
        <source>The marker that points north; without a symbol a plain arrow.</source>
        <translation>指向北方的标记；没有符号时为简单箭头。</translation>
    </message>
    <message>
        <source>The distance of two lines; 0, or one that would make more than 1,000 lines, chooses one for the map&apos;s scale.</source>
        <translation>两条线的间隔；0 或会产生超过 1,000 条线的间隔，则按地图比例尺选择。</translation>
    </message>
    <message>
        <source>Whether the degrees stand outside the frame, or where a parallel ends inside it.</source>
        <translation>度数是否标注在框外，或标注在纬线于框内结束处。</translation>
    </message>
    <message>
        <source>How the meridians and parallels are drawn; without a symbol grey and 0.3 points wide.</source>
        <translation>经线和纬线如何绘制；没有符号时为灰色、0.3 磅宽。</translation>
    </message>
    <message>
        <source>How the letters of the labels look; without a symbol 6.5 points high.</source>
        <translation>标注文字的样子；没有符号时为 6.5 磅。</translation>
    </message>
    <message>
        <source>The symbol, of any kind.</source>
        <translation>符号，可为任何种类。</translation>
    </message>
    <message>
        <source>What the category is called; slashes put it into others, as in “Markers/Towns”.</source>
        <translation>类别的名称；斜杠表示位于其他类别中，如“Markers/Towns”。</translation>
    </message>
    <message>
        <source>The picture as SVG, which refers to nothing outside itself; its view box is the marker.</source>
        <translation>以 SVG 表示的图片，不引用外部内容；其 viewBox 即标记。</translation>
    </message>
    <message>
        <source>The version of the format; a newer one is refused.</source>
        <translation>格式的版本；更新的版本会被拒绝。</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>变暗</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>变亮</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>How much of the layer is seen; features of it do not show through each other.</source>
        <translation>图层的可见程度；图层内的要素不会彼此透出。</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Whether the layer covers the layers below, or darkens or lightens them.</source>
        <translation>图层是覆盖下方的图层，还是使其变暗或变亮。</translation>
    </message>
    <message>
        <source>Line of dashes</source>
        <translation>虚线</translation>
    </message>
    <message>
        <source>Line of markers</source>
        <translation>点标记线</translation>
    </message>
    <message>
        <source>Layered line</source>
        <translation>分层线</translation>
    </message>
    <message>
        <source>Fill of pictures</source>
        <translation>图片填充</translation>
    </message>
    <message>
        <source>Fill of markers</source>
        <translation>点标记填充</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Layered fill</source>
        <translation>分层填充</translation>
    </message>
    <message>
        <source>Layered marker</source>
        <translation>分层点标记</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Lengths of dashes</source>
        <translation>划线长度</translation>
    </message>
    <message>
        <source>The lengths of dashes and gaps in turn, without their ends; an odd count is run through twice.</source>
        <translation>划线与间隔交替的长度，不含端头；个数为奇数时循环两遍。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>How far into the dashes and gaps the line begins.</source>
        <translation>线从划线与间隔序列的何处开始。</translation>
    </message>
    <message>
        <source>The marker that is repeated.</source>
        <translation>重复的点标记。</translation>
    </message>
    <message>
        <source>How far it is from one marker to the next, a pixel at least.</source>
        <translation>相邻点标记之间的距离，至少一个像素。</translation>
    </message>
    <message>
        <source>First marker</source>
        <translation>第一个点标记</translation>
    </message>
    <message>
        <source>How far it is from the beginning of the line to its first marker.</source>
        <translation>从线的起点到第一个点标记的距离。</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Whether what is the right of a marker points along the line.</source>
        <translation>点标记的右侧是否指向线的方向。</translation>
    </message>
    <message>
        <source>The picture as SVG, which refers to nothing outside itself; its view box is a tile.</source>
        <translation>SVG 图片，不引用自身以外的内容；其视图框为一块图块。</translation>
    </message>
    <message>
        <source>The width of a tile; its height follows from the picture.</source>
        <translation>图块的宽度；高度由图片决定。</translation>
    </message>
    <message>
        <source>How far tiles and pictures are turned counterclockwise.</source>
        <translation>图块和图片逆时针旋转的角度。</translation>
    </message>
    <message>
        <source>Column width</source>
        <translation>列宽</translation>
    </message>
    <message>
        <source>How far it is from one marker of a row to the next.</source>
        <translation>同一行中相邻点标记之间的距离。</translation>
    </message>
    <message>
        <source>Row height</source>
        <translation>行高</translation>
    </message>
    <message>
        <source>How far it is from one row to the next.</source>
        <translation>相邻两行之间的距离。</translation>
    </message>
    <message>
        <source>Staggered</source>
        <translation>错开</translation>
    </message>
    <message>
        <source>Whether every second row is moved by half a column.</source>
        <translation>是否每隔一行错开半列。</translation>
    </message>
    <message>
        <source>How far the rows are turned counterclockwise; the markers stay upright.</source>
        <translation>各行逆时针旋转的角度；点标记保持直立。</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Whether the colours run across the area&apos;s rectangle, or from its middle outwards.</source>
        <translation>颜色是横穿区域的外接矩形，还是从其中心向外变化。</translation>
    </message>
    <message>
        <source>Where a straight gradient runs to, counterclockwise from the right; −90 is down.</source>
        <translation>直线渐变的走向，从右侧起逆时针计；−90 为向下。</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>The colours of the gradient, from its beginning to its end.</source>
        <translation>渐变从起点到终点的颜色。</translation>
    </message>
    <message>
        <source>Where the colour stands between the beginning and the end, not before the last one.</source>
        <translation>颜色在起点与终点之间的位置，不得在前一颜色之前。</translation>
    </message>
    <message>
        <source>The colour at this place.</source>
        <translation>此处的颜色。</translation>
    </message>
    <message>
        <source>Symbols that are drawn one over the other, the first one at the bottom.</source>
        <translation>自下而上依次叠绘的符号，第一个在最下面。</translation>
    </message>
    <message>
        <source>there is no entry %1 in a list of %2</source>
        <translation>在有 %2 项的列表中没有第 %1 项</translation>
    </message>
    <message>
        <source>there is no “%1” in a value</source>
        <translation>值中没有“%1”</translation>
    </message>
    <message>
        <source>there is no field “%1”; there are %2</source>
        <translation>没有字段“%1”；有 %2</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side. It is centred in the data frame and widened to its shape. Of a map that is turned, what it would show straight, about the same centre.</source>
        <translation>地图显示的范围：左、下、右、上边。它在数据框中居中，并扩展到数据框的形状。对于旋转的地图，是它以同一中心未旋转时会显示的范围。</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>How far the map is turned counterclockwise about its centre. The frame stays, and letters, pictures and the patterns of areas stay upright.</source>
        <translation>地图绕其中心逆时针旋转的角度。数据框不动，文字、图片和面的图案保持直立。</translation>
    </message>
    <message>
        <source>Whether it points to true north at the map&apos;s centre, and not to where up on the map is.</source>
        <translation>是否指向地图中心处的真北，而不是地图的上方。</translation>
    </message>
    <message>
        <source>Other maps</source>
        <translation>其他地图</translation>
    </message>
    <message>
        <source>How many maps more the surrounds follow.</source>
        <translation type="vanished">整饰要素所跟随的其他地图的数量。</translation>
    </message>
    <message>
        <source>Those of the data frames.</source>
        <translation>数据框的地图。</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG, TIFF, WebP or SVG), relative to the document; without one, and without an embedded picture, a crossed frame is drawn.</source>
        <translation>图片的文件（PNG、JPEG、TIFF、WebP 或 SVG），相对于文档；没有文件也没有嵌入图片时，绘制带叉的方框。</translation>
    </message>
    <message>
        <source>Embedded picture</source>
        <translation>嵌入图片</translation>
    </message>
    <message>
        <source>The picture itself, as a data URI; it is drawn in place of the file, which then only says where the picture came from.</source>
        <translation>图片本身，以 data URI 表示；绘制它而不绘制文件，文件只说明图片的来源。</translation>
    </message>
    <message>
        <source>How far the picture is turned counterclockwise about its middle.</source>
        <translation>图片绕其中心逆时针旋转的角度。</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>码</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>美制测量英尺</translation>
    </message>
    <message>
        <source>After the entries</source>
        <translation>在条目之后</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>圆角矩形</translation>
    </message>
    <message>
        <source>Zigzag</source>
        <translation>锯齿线</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波浪线</translation>
    </message>
    <message>
        <source>Width of the patches</source>
        <translation>图例符号宽度</translation>
    </message>
    <message>
        <source>How wide a line or a fill is shown.</source>
        <translation>线或填充显示的宽度。</translation>
    </message>
    <message>
        <source>Height of the patches</source>
        <translation>图例符号高度</translation>
    </message>
    <message>
        <source>How high a fill is shown, and a line that is not straight.</source>
        <translation>填充以及非直线显示的高度。</translation>
    </message>
    <message>
        <source>Shape of fills</source>
        <translation>填充的形状</translation>
    </message>
    <message>
        <source>What is filled to show a fill.</source>
        <translation>用来显示填充的图形。</translation>
    </message>
    <message>
        <source>Shape of lines</source>
        <translation>线的形状</translation>
    </message>
    <message>
        <source>How a line runs through its patch. One that is too wide for the height of the patches is shown straight.</source>
        <translation>线在图例符号中的走向。对图例符号高度来说过宽的线显示为直线。</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>The name of the layer. The entry stays, and shows nothing, while the map has none of that name.</source>
        <translation>图层的名称。地图中没有该名称的图层时，条目保留但不显示任何内容。</translation>
    </message>
    <message>
        <source>What stands for the layer, or above its classes; empty for the layer&apos;s name, or the label of its only symbol.</source>
        <translation>代表图层或位于其类别上方的文字；留空则为图层名称，或其唯一符号的标签。</translation>
    </message>
    <message>
        <source>The labels of the classes that are shown, in that order; none for all, as the layer has them.</source>
        <translation>所显示类别的标签，按此顺序；不填则按图层的顺序显示全部。</translation>
    </message>
    <message>
        <source>The labels of classes that are not shown.</source>
        <translation>不显示的类别的标签。</translation>
    </message>
    <message>
        <source>Drawn with</source>
        <translation>一同绘制</translation>
    </message>
    <message>
        <source>The names of layers whose symbols are drawn in the same patches, over each other as in the map, such as the casing below a road. Of each, the class with the same label is taken, or its only one. They are not listed by themselves.</source>
        <translation>其符号绘制在同一图例符号中的图层名称，叠放次序与地图相同，例如道路下面的边线。每个图层取标签相同的类别，或其唯一的类别。这些图层不再单独列出。</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Layers in the order in which the legend lists them.</source>
        <translation>图例列出图层的顺序。</translation>
    </message>
    <message>
        <source>Other layers</source>
        <translation>其他图层</translation>
    </message>
    <message>
        <source>What becomes of layers that no entry names: they follow, the topmost first, or are left out.</source>
        <translation>没有条目提到的图层如何处理：接在后面（最上面的在先），或不列出。</translation>
    </message>
    <message>
        <source>On the map only</source>
        <translation>仅限地图所示</translation>
    </message>
    <message>
        <source>Whether only classes are listed of which a feature lies within what the map shows.</source>
        <translation>是否只列出在地图所示范围内有要素的类别。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>Into how many columns of about the same height the lines go, a heading always with its first class; 0 takes as many as show the legend largest.</source>
        <translation>各行分成几列，各列高度大致相同，标题总与其第一个类别在一起；0 表示取使图例最大的列数。</translation>
    </message>
    <message>
        <source>Width of texts</source>
        <translation>文字宽度</translation>
    </message>
    <message>
        <source>The width at which the title, headings and entries are broken into lines, at spaces; 0 for never.</source>
        <translation>标题、小标题和条目在空格处换行的宽度；0 表示从不换行。</translation>
    </message>
    <message>
        <source>Above the bar</source>
        <translation>在上方</translation>
    </message>
    <message>
        <source>Below the bar</source>
        <translation>在下方</translation>
    </message>
    <message>
        <source>Text of the unit</source>
        <translation>单位文字</translation>
    </message>
    <message>
        <source>What stands behind the last number; empty for the sign of the unit.</source>
        <translation>最后一个数字后面的文字；留空则为单位符号。</translation>
    </message>
    <message>
        <source>Divisions</source>
        <translation>分段数</translation>
    </message>
    <message>
        <source>How many parts the bar has; 0 chooses.</source>
        <translation>比例尺条的段数；0 表示自动选择。</translation>
    </message>
    <message>
        <source>Length of a division</source>
        <translation>每段长度</translation>
    </message>
    <message>
        <source>The ground that a part of the bar stands for, in the unit, or in metres where that is automatic; 0 chooses a round length. A bar that is then too long for its frame is not drawn; its place tells why.</source>
        <translation>比例尺条每段所代表的实地长度，以所选单位计，单位为自动时以米计；0 表示选择整数长度。如果比例尺条因此超出其框架，则不绘制，并在其位置说明原因。</translation>
    </message>
    <message>
        <source>Subdivisions</source>
        <translation>细分数</translation>
    </message>
    <message>
        <source>Into how many parts the first division is divided. It then lies to the left of the 0, as on topographic maps, and the numbers are counted from its right end: four divisions of 250 m are numbered 250, 0, 250, 500 and 750 m. 0 divides nothing, and the bar begins with 0.</source>
        <translation>第一段细分成几份。此时它像地形图那样位于 0 的左侧，数字从其右端算起：四段 250 米标为 250、0、250、500 和 750 m。0 表示不细分，比例尺条从 0 开始。</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>On which side of the bar its numbers stand.</source>
        <translation>数字位于比例尺条的哪一侧。</translation>
    </message>
    <message>
        <source>The text, with %1 where the scale stands, and {km/cm} for the kilometres of ground on a centimetre of paper. Before the slash may stand m, km, ft, mi, nmi, cm, yd or ftUS, behind it cm or in.</source>
        <translation>文字，其中 %1 为比例尺所在处，{km/cm} 为图上一厘米所代表的实地公里数。斜线前可以是 m、km、ft、mi、nmi、cm、yd 或 ftUS，后面是 cm 或 in。</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Barbed arrow</source>
        <translation>带倒钩的箭头</translation>
    </message>
    <message>
        <source>Open arrow</source>
        <translation>开口箭头</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>圆点</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>短横</translation>
    </message>
    <message>
        <source>Head at the start</source>
        <translation>起点箭头</translation>
    </message>
    <message>
        <source>What the first vertex bears.</source>
        <translation>第一个顶点处的形状。</translation>
    </message>
    <message>
        <source>Head at the end</source>
        <translation>终点箭头</translation>
    </message>
    <message>
        <source>What the last vertex bears.</source>
        <translation>最后一个顶点处的形状。</translation>
    </message>
    <message>
        <source>Size of the heads</source>
        <translation>箭头大小</translation>
    </message>
    <message>
        <source>How long an arrow head is; bars are as wide, dots half as wide.</source>
        <translation>箭头的长度；短横与之同宽，圆点为其一半宽。</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits] and [page] are filled in while it is drawn.</source>
        <translation type="vanished">文本内容。[scale]、[date:yyyy-MM-dd]、[document]、[map]、[crs]、[credits] 和 [page] 在绘制时填入。</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>数据来源</translation>
    </message>
    <message>
        <source>Whom the data come from; [credits] in a text of the page names them all.</source>
        <translation>数据的提供者；页面文本中的 [credits] 会列出全部来源。</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Whether it is drawn neither on the screen nor in an export.</source>
        <translation>是否既不在屏幕上也不在导出中绘制。</translation>
    </message>
    <message>
        <source>Whether the mouse leaves it alone, and the map of a data frame.</source>
        <translation>鼠标是否不触动它，以及数据框中的地图。</translation>
    </message>
    <message>
        <source>The number of the other map whose part of the world is marked; −1 for none.</source>
        <translation>标出其所示范围的另一个地图的编号；−1 表示没有。</translation>
    </message>
    <message>
        <source>How the area is drawn; without a symbol as a red line of one point.</source>
        <translation>区域如何绘制；没有符号时为一点宽的红线。</translation>
    </message>
    <message>
        <source>Overviews</source>
        <translation>鹰眼范围</translation>
    </message>
    <message>
        <source>What other maps show, marked on this one.</source>
        <translation>在此地图上标出其他地图所显示的范围。</translation>
    </message>
    <message>
        <source>Scale is locked</source>
        <translation>锁定比例尺</translation>
    </message>
    <message>
        <source>Whether the map keeps its scale and shows more or less where its frame becomes larger or smaller. The extent then gives the centre alone.</source>
        <translation>数据框变大或变小时，地图是否保持比例尺而显示更多或更少的内容。此时范围只决定中心。</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>How many times smaller the map is than the ground at its centre. It is stored where it is locked; otherwise the extent decides, and another scale changes that.</source>
        <translation>地图在其中心处比实地缩小的倍数。锁定时会存储；否则由范围决定，改变比例尺就会改变范围。</translation>
    </message>
    <message>
        <source>Longitude and latitude</source>
        <translation>经度和纬度</translation>
    </message>
    <message>
        <source>Coordinates of the map</source>
        <translation>地图坐标</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Ticks at the frame</source>
        <translation>边框处的短线</translation>
    </message>
    <message>
        <source>Crosses where lines would cross</source>
        <translation>线相交处的十字</translation>
    </message>
    <message>
        <source>Minutes and seconds as needed</source>
        <translation>按需要显示分和秒</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>十进制度</translation>
    </message>
    <message>
        <source>Degrees and minutes</source>
        <translation>度和分</translation>
    </message>
    <message>
        <source>Degrees, minutes and seconds</source>
        <translation>度、分和秒</translation>
    </message>
    <message>
        <source>Labels on the left</source>
        <translation>左侧标注</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels to the left of the frame.</source>
        <translation>在左边结束的线是否在边框左侧标注。</translation>
    </message>
    <message>
        <source>Labels on the right</source>
        <translation>右侧标注</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels to the right of the frame.</source>
        <translation>在右边结束的线是否在边框右侧标注。</translation>
    </message>
    <message>
        <source>Labels above</source>
        <translation>上方标注</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels above the frame.</source>
        <translation>在上边结束的线是否在边框上方标注。</translation>
    </message>
    <message>
        <source>Labels below</source>
        <translation>下方标注</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels below the frame.</source>
        <translation>在下边结束的线是否在边框下方标注。</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>What is constant along a line: longitude or latitude, or a coordinate of the map, as of a grid in metres.</source>
        <translation>沿一条线保持不变的量：经度或纬度，或者地图的坐标，如以米为单位的格网。</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>The distance of two lines of a grid in coordinates of the map, in place of the interval; 0 chooses one.</source>
        <translation>以地图坐标划分的格网中两条线的距离，代替间隔；0 表示自动选择。</translation>
    </message>
    <message>
        <source>Whether all of the lines, or only a part of them is drawn.</source>
        <translation>绘制整条线，还是只绘制其中一部分。</translation>
    </message>
    <message>
        <source>Size of the marks</source>
        <translation>标记大小</translation>
    </message>
    <message>
        <source>How long ticks are, or the arms of a cross from end to end.</source>
        <translation>短线的长度，或十字两端之间的长度。</translation>
    </message>
    <message>
        <source>Format of degrees</source>
        <translation>度数格式</translation>
    </message>
    <message>
        <source>How longitudes and latitudes are written.</source>
        <translation>经度和纬度的书写方式。</translation>
    </message>
    <message>
        <source>Signs</source>
        <translation>正负号</translation>
    </message>
    <message>
        <source>Whether west and south are told by a minus, and not by letters; coordinates of the map are then numbers alone.</source>
        <translation>西经和南纬是否用负号而不用字母表示；此时地图坐标只有数字。</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which the mouse draws what it moves; they are not printed.</source>
        <translation type="vanished">沿页面边缘的线，鼠标移动对象时会吸附；不打印。</translation>
    </message>
    <message>
        <source>From the left edge.</source>
        <translation>距左边缘。</translation>
    </message>
    <message>
        <source>From the right edge.</source>
        <translation>距右边缘。</translation>
    </message>
    <message>
        <source>From the upper edge.</source>
        <translation>距上边缘。</translation>
    </message>
    <message>
        <source>From the lower edge.</source>
        <translation>距下边缘。</translation>
    </message>
    <message>
        <source>Vertical guides</source>
        <translation>垂直参考线</translation>
    </message>
    <message>
        <source>Lines from top to bottom that help to arrange, by their distance from the left edge of the page; they are not printed.</source>
        <translation>帮助排版的垂直线，以距页面左边缘的距离表示；不打印。</translation>
    </message>
    <message>
        <source>Horizontal guides</source>
        <translation>水平参考线</translation>
    </message>
    <message>
        <source>Lines from left to right, by their distance from the lower edge.</source>
        <translation>水平线，以距下边缘的距离表示。</translation>
    </message>
    <message>
        <source>The distance of the lines of a grid to which the mouse draws what it moves; 0 for none.</source>
        <translation type="vanished">鼠标吸附网格的线间距；0 表示没有网格。</translation>
    </message>
    <message>
        <source>How many maps more surrounds and overviews follow.</source>
        <translation>整饰要素和鹰眼范围所跟随的其他地图的数量。</translation>
    </message>
    <message>
        <source>At which its lines are broken on paper; 0 breaks them only where the text does.</source>
        <translation>在纸上换行的宽度；0 表示只在文本自身换行处换行。</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>占位符</translation>
    </message>
    <message>
        <source>Whether placeholders are filled in, and do not stand as written.</source>
        <translation>占位符是否被填入，而不是按原样显示。</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which the mouse draws what it moves; they are not printed. Without any width they are 1 cm wide.</source>
        <translation type="vanished">沿页面边缘的线，鼠标移动的对象会吸附到这些线上；不会打印。未给出任何宽度时为 1 厘米。</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which what is moved snaps; they are not printed. Without any width they are 1 cm wide.</source>
        <translation>沿页面边缘的线，移动的对象会吸附；不打印。未给出宽度时为 1 厘米。</translation>
    </message>
    <message>
        <source>The distance of the lines of a grid to which what is moved snaps; 0 for none.</source>
        <translation>移动的对象所吸附网格的线间距；0 表示没有网格。</translation>
    </message>
    <message>
        <source>What the group is called.</source>
        <translation>组的名称。</translation>
    </message>
    <message>
        <source>Whether the layers of the group show that are visible themselves.</source>
        <translation>组中自身可见的图层是否显示。</translation>
    </message>
    <message>
        <source>The layers of the group, the lowest first; groups lie at most 16 deep in each other.</source>
        <translation>组中的图层，最下面的在前；组最多嵌套 16 层。</translation>
    </message>
    <message>
        <source>The local file of the table (CSV or any other of data), relative to the document.</source>
        <translation>表的本地文件（CSV 或其他数据文件），相对于文档。</translation>
    </message>
    <message>
        <source>Key of the features</source>
        <translation>要素的键</translation>
    </message>
    <message>
        <source>The attribute that tells which row of the table a feature has.</source>
        <translation>指明要素对应表中哪一行的属性。</translation>
    </message>
    <message>
        <source>Key of the table</source>
        <translation>表的键</translation>
    </message>
    <message>
        <source>The field of the table that holds the same values: the same texts, or numbers of the same value. Of several rows with one key the first counts.</source>
        <translation>表中含相同值的字段：相同的文本，或数值相等的数字。键相同的多行以第一行为准。</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>前缀</translation>
    </message>
    <message>
        <source>Stands before the names of the table&apos;s fields. Without one, a name that is taken gets the table&apos;s name and an underscore before it.</source>
        <translation>置于表字段名之前。不设时，重复的名称前会加上表名和下划线。</translation>
    </message>
    <message>
        <source>The local file of the data (GeoPackage, GeoJSON, Shapefile, FlatGeobuf, GPX, KML, MapInfo, DXF or CSV), relative to the document.</source>
        <translation>数据的本地文件（GeoPackage、GeoJSON、Shapefile、FlatGeobuf、GPX、KML、MapInfo、DXF 或 CSV），相对于文档。</translation>
    </message>
    <message>
        <source>Column of x</source>
        <translation>x 列</translation>
    </message>
    <message>
        <source>Of a table: the column that holds eastings or longitudes. Where none is named, the names and values of the columns tell.</source>
        <translation>用于表：含东坐标或经度的列。未指定时由列的名称和值判断。</translation>
    </message>
    <message>
        <source>Column of y</source>
        <translation>y 列</translation>
    </message>
    <message>
        <source>Of a table: the column that holds northings or latitudes.</source>
        <translation>用于表：含北坐标或纬度的列。</translation>
    </message>
    <message>
        <source>Column of geometries</source>
        <translation>几何列</translation>
    </message>
    <message>
        <source>Of a table: the column that holds geometries as well-known text.</source>
        <translation>用于表：以 WKT 存放几何的列。</translation>
    </message>
    <message>
        <source>Joined tables</source>
        <translation>连接的表</translation>
    </message>
    <message>
        <source>Tables whose fields become those of the features: labels, classes and the filter may use them.</source>
        <translation>其字段成为要素字段的表：标注、分类和过滤条件都可使用。</translation>
    </message>
    <message>
        <source>Symbols by rules</source>
        <translation>按规则设置符号</translation>
    </message>
    <message>
        <source>Sizes in proportion to a number</source>
        <translation>大小与数值成比例</translation>
    </message>
    <message>
        <source>The first that fits</source>
        <translation>第一条匹配的规则</translation>
    </message>
    <message>
        <source>All that fit</source>
        <translation>所有匹配的规则</translation>
    </message>
    <message>
        <source>The area</source>
        <translation>面积</translation>
    </message>
    <message>
        <source>The area as people see it (Flannery)</source>
        <translation>视觉感知的面积（Flannery）</translation>
    </message>
    <message>
        <source>The diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>嵌套</translation>
    </message>
    <message>
        <source>One below the other</source>
        <translation>逐行</translation>
    </message>
    <message>
        <source>Size by</source>
        <translation>大小依据</translation>
    </message>
    <message>
        <source>An expression on the attributes as in SQL, “population / 100000”, for the size of the marker or the width of the line in points; where it has no value, the symbol keeps its own.</source>
        <translation>关于属性的 SQL 表达式，如“population / 100000”，给出标记的大小或线的宽度（磅）；没有值时符号保持自身大小。</translation>
    </message>
    <message>
        <source>Colour by</source>
        <translation>颜色依据</translation>
    </message>
    <message>
        <source>An expression for the colour, a text like #rrggbb; where it has no value, the symbol keeps its own.</source>
        <translation>颜色的表达式，结果为 #rrggbb 形式的文本；没有值时符号保持自身颜色。</translation>
    </message>
    <message>
        <source>Angle by</source>
        <translation>角度依据</translation>
    </message>
    <message>
        <source>An expression for the angle of the marker in degrees counterclockwise; where it has no value, the symbol keeps its own.</source>
        <translation>标记角度的表达式（逆时针度数）；没有值时符号保持自身角度。</translation>
    </message>
    <message>
        <source>Rules that draw</source>
        <translation>绘制的规则</translation>
    </message>
    <message>
        <source>Whether a feature is drawn by the first rule that fits it and draws at the map&apos;s scale, or by all such rules, the first one lowest.</source>
        <translation>要素由第一条匹配且在地图比例尺下绘制的规则绘制，还是由所有这样的规则绘制（第一条在最下面）。</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Which features are drawn how, and at which scales.</source>
        <translation>哪些要素如何绘制，以及在哪些比例尺下绘制。</translation>
    </message>
    <message>
        <source>In legends</source>
        <translation>显示在图例中</translation>
    </message>
    <message>
        <source>Whether legends list the rule.</source>
        <translation>图例是否列出该规则。</translation>
    </message>
    <message>
        <source>The marker, in its size for the reference.</source>
        <translation type="vanished">标记，其大小对应参考值。</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>参考值</translation>
    </message>
    <message>
        <source>The number at which the marker has the size of its symbol; 0 for the largest number of the layer.</source>
        <translation>标记取其符号大小时对应的数值；0 表示图层中的最大值。</translation>
    </message>
    <message>
        <source>Smallest size</source>
        <translation>最小大小</translation>
    </message>
    <message>
        <source>The size that no marker goes below.</source>
        <translation>任何标记都不小于此大小。</translation>
    </message>
    <message>
        <source>In proportion</source>
        <translation>成比例的量</translation>
    </message>
    <message>
        <source>What of a marker grows as the number does.</source>
        <translation>标记的哪个量随数值增长。</translation>
    </message>
    <message>
        <source>Markers in legends</source>
        <translation>图例中的标记</translation>
    </message>
    <message>
        <source>How a legend shows some sizes with their numbers.</source>
        <translation>图例如何显示若干大小及其数值。</translation>
    </message>
    <message>
        <source>Numbers in legends</source>
        <translation>图例中的数值</translation>
    </message>
    <message>
        <source>The numbers whose sizes a legend shows; none for some round ones.</source>
        <translation>图例显示其大小的数值；留空则取若干整数值。</translation>
    </message>
    <message>
        <source>One symbol for all features, one for each value of an attribute, one for each range of a numeric attribute, symbols by rules, or markers in sizes by a number.</source>
        <translation>所有要素使用一个符号、属性的每个值一个符号、数值属性的每个区间一个符号、按规则设置符号，或按数值设置标记大小。</translation>
    </message>
    <message>
        <source>A file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The whole globe</source>
        <translation>整个地球</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Markers and lines</source>
        <translation>标记和线</translation>
    </message>
    <message>
        <source>Whole areas</source>
        <translation>整个面</translation>
    </message>
    <message>
        <source>Group of layers</source>
        <translation>图层组</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Whether the features come from a file, or the layer is one area that covers the whole globe, as the sea below countries; the other fields are those of a file.</source>
        <translation>要素来自文件，还是该图层为覆盖整个地球的一个面（如各国之下的海洋）；其他字段用于文件。</translation>
    </message>
    <message>
        <source>Kept free</source>
        <translation>避让</translation>
    </message>
    <message>
        <source>What the labels of other layers keep off: nothing, markers and lines, or these and whole areas.</source>
        <translation>其他图层的标注要避让什么：不避让、标记和线，或者连同整个面。</translation>
    </message>
    <message>
        <source>Above the line</source>
        <translation>在线上方</translation>
    </message>
    <message>
        <source>On the line</source>
        <translation>在线上</translation>
    </message>
    <message>
        <source>Curved with the line</source>
        <translation>沿线弯曲</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Outside where it does not fit</source>
        <translation>放不下时在外部</translation>
    </message>
    <message>
        <source>Text of an expression</source>
        <translation>表达式文字</translation>
    </message>
    <message>
        <source>An expression on the attributes as in SQL, “concat(name, &apos;, &apos;, country)”, for the text; where it has no value, the attribute&apos;s stands.</source>
        <translation>用于文字的属性表达式，写法同 SQL，如“concat(name, &apos;, &apos;, country)”；没有值时使用属性的值。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>A code such as de: where a feature has an attribute of that language beside the one that is named (name:de or name_de beside name), it is the text.</source>
        <translation>语言代码，例如 de：要素除指定属性外若有该语言的属性（name 之外的 name:de 或 name_de），则以其为文字。</translation>
    </message>
    <message>
        <source>Numbers as they are read</source>
        <translation>数字按阅读习惯书写</translation>
    </message>
    <message>
        <source>Whether numbers have the decimal and thousands separators of the user&apos;s language.</source>
        <translation>数字是否使用用户语言的小数点和千位分隔符。</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>From the mark of a point, or from the line, to the label.</source>
        <translation>从点的标记或从线到标注。</translation>
    </message>
    <message>
        <source>Broken at</source>
        <translation>换行宽度</translation>
    </message>
    <message>
        <source>The width at which labels of points are broken into lines; 0 for never.</source>
        <translation>点的标注换行的宽度；0 表示从不换行。</translation>
    </message>
    <message>
        <source>Places beside points</source>
        <translation>点旁的位置</translation>
    </message>
    <message>
        <source>Where a label may stand, the most wanted place first: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below or centre; where none is named, all but the last in this order.</source>
        <translation type="vanished">标注可以放在哪里，最希望的位置在前：upperRight（右上）、upperLeft（左上）、lowerRight（右下）、lowerLeft（左下）、right（右）、left（左）、above（上）、below（下）或 centre（正中）；不指定时按此顺序使用除最后一个以外的所有位置。</translation>
    </message>
    <message>
        <source>Place along lines</source>
        <translation>线上的位置</translation>
    </message>
    <message>
        <source>How the label of a line lies on it; letters stand upright.</source>
        <translation type="vanished">线的标注如何沿线放置；字母始终正立。</translation>
    </message>
    <message>
        <source>Repeated after</source>
        <translation>重复间距</translation>
    </message>
    <message>
        <source>How far from each other the same text stands along lines; with 0, each line has one label.</source>
        <translation>同一文字沿线重复时彼此的距离；为 0 时每条线只有一个标注。</translation>
    </message>
    <message>
        <source>Place at areas</source>
        <translation>面上的位置</translation>
    </message>
    <message>
        <source>Whether a label that does not fit into its area is left out, or stands beside it with a line that leads there.</source>
        <translation type="vanished">放不进面内的标注是略去，还是放在旁边并用引线相连。</translation>
    </message>
    <message>
        <source>Least size</source>
        <translation>最小尺寸</translation>
    </message>
    <message>
        <source>On the page: shorter lines and narrower areas have no labels. 0 for no limit.</source>
        <translation>页面上的尺寸：更短的线和更窄的面没有标注。0 表示不限。</translation>
    </message>
    <message>
        <source>Attribute of the key</source>
        <translation>键属性</translation>
    </message>
    <message>
        <source>The attribute by which pinned labels know their features; without one, the number that the file gives them.</source>
        <translation>固定标注用以识别要素的属性；不指定时使用文件给出的编号。</translation>
    </message>
    <message>
        <source>Pinned labels</source>
        <translation>固定标注</translation>
    </message>
    <message>
        <source>Labels that stay where they were put, or are hidden.</source>
        <translation>停留在放置处或被隐藏的标注。</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Which feature it is: the value of its key.</source>
        <translation>是哪个要素：其键的值。</translation>
    </message>
    <message>
        <source>Whether the feature has no label at all.</source>
        <translation>该要素是否完全没有标注。</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Of the middle of the text.</source>
        <translation>文字中心的坐标。</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>By which the text is turned counterclockwise on the page.</source>
        <translation>文字在页面上逆时针旋转的角度。</translation>
    </message>
    <message>
        <source>The marker, in its size for the reference; it stands in areas and on lines.</source>
        <translation>标记，其大小对应参考值；可位于面内和线上。</translation>
    </message>
    <message>
        <source>Colour of the box</source>
        <translation>框的颜色</translation>
    </message>
    <message>
        <source>The colour of a box behind the text, as callouts have.</source>
        <translation type="vanished">文字后面的框的颜色，如标注框。</translation>
    </message>
    <message>
        <source>Colour of the box&apos;s line</source>
        <translation>框线颜色</translation>
    </message>
    <message>
        <source>The colour of the line about the box.</source>
        <translation>框周围线条的颜色。</translation>
    </message>
    <message>
        <source>Line of the box</source>
        <translation>框线</translation>
    </message>
    <message>
        <source>The width of the line about the box; 0 for none.</source>
        <translation>框周围线条的宽度；0 表示没有。</translation>
    </message>
    <message>
        <source>Padding of the box</source>
        <translation>框内边距</translation>
    </message>
    <message>
        <source>From the text to the edge of its box.</source>
        <translation>从文字到框边缘的距离。</translation>
    </message>
    <message>
        <source>What the document is called: [title] in a text of the page, and the title of files made of it. Without one it is the name of its file.</source>
        <translation>文档的名称：页面文本中的 [title]，以及由它生成的文件的标题。未填写时用文件名。</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Who made it: [author] in a text of the page.</source>
        <translation>制作者：页面文本中的 [author]。</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>What it is about.</source>
        <translation>它的内容是什么。</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Words by which it is to be found.</source>
        <translation>用于查找它的词。</translation>
    </message>
    <message>
        <source>The language of its texts, as in “en”, “de-CH” or “zh-Hans”; programs that read a page aloud go by it.</source>
        <translation>其文本的语言，如 “en”、“de-CH” 或 “zh-Hans”；朗读页面的程序以此为准。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>What the document says about itself, and files made of it say, too.</source>
        <translation>文档对自身的说明，由它生成的文件也会带上。</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author] and [page] are filled in while it is drawn.</source>
        <translation type="vanished">文本内容。[scale]、[date:yyyy-MM-dd]、[document]、[map]、[crs]、[credits]、[title]、[author] 和 [page] 在绘制时填入。</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>A page for each feature of a layer, or for each row of a table.</source>
        <translation>图层的每个要素或表格的每一行各有一页。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页</translation>
    </message>
    <message>
        <source>On which pages of a series it stands: first, last, odd, even, numbers as in “1-3,7”, or a condition on the attributes of the page&apos;s feature; empty for all.</source>
        <translation>它出现在系列的哪些页上：first、last、odd、even，如“1-3,7”的页码，或关于该页要素属性的条件；空表示所有页。</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author], [page], [pages], [field:NAME] and [neighbour:north] are filled in while it is drawn.</source>
        <translation>其内容。[scale]、[date:yyyy-MM-dd]、[document]、[map]、[crs]、[credits]、[title]、[author]、[page]、[pages]、[field:NAME] 和 [neighbour:north] 在绘制时填入。</translation>
    </message>
    <message>
        <source>The name of a layer of the map: each of its features has a page. Empty where a source of its own has the features.</source>
        <translation>地图中某图层的名称：其每个要素有一页。若要素来自单独的数据源则为空。</translation>
    </message>
    <message>
        <source>Data of which no map has a layer: each feature or row of a table has a page.</source>
        <translation>任何地图都没有其图层的数据：每个要素或表格的每一行有一页。</translation>
    </message>
    <message>
        <source>A condition on the attributes as in SQL: only features that meet it have a page.</source>
        <translation>关于属性的 SQL 条件：只有满足它的要素才有页面。</translation>
    </message>
    <message>
        <source>Sorted by</source>
        <translation>排序依据</translation>
    </message>
    <message>
        <source>The attribute by which pages are in order; empty for the order of the data. What has no value comes last.</source>
        <translation>页面排序所依据的属性；空表示数据的顺序。没有值的排在最后。</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>降序</translation>
    </message>
    <message>
        <source>Whether the highest value comes first.</source>
        <translation>是否最大值在前。</translation>
    </message>
    <message>
        <source>Name of a page</source>
        <translation>页面名称</translation>
    </message>
    <message>
        <source>What a page is called in lists and bookmarks, as in “[field:name]”. Empty for the value by which pages are sorted, or their number.</source>
        <translation>页面在列表和书签中的名称，如“[field:name]”。空表示排序所用的值或页码。</translation>
    </message>
    <message>
        <source>Other maps that follow</source>
        <translation>其他跟随的地图</translation>
    </message>
    <message>
        <source>Maps of further data frames that follow the features, each in its own way.</source>
        <translation>其他数据框的地图，各以自己的方式跟随要素。</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>突出显示</translation>
    </message>
    <message>
        <source>With what the feature of the page is drawn over its layer; without it, it is not.</source>
        <translation>该页的要素用什么绘制在其图层之上；没有则不绘制。</translation>
    </message>
    <message>
        <source>Hide others</source>
        <translation>隐藏其他</translation>
    </message>
    <message>
        <source>Whether the other features of the layer are left out, with their labels.</source>
        <translation>是否省略该图层的其他要素及其标注。</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>外部</translation>
    </message>
    <message>
        <source>With what all that lies outside the feature&apos;s area is covered, as far as it lies below the layer; without it, nothing is.</source>
        <translation>要素区域之外且位于该图层之下的一切用什么遮盖；没有则不遮盖。</translation>
    </message>
    <message>
        <source>The number of the map that follows the features; −1 for none.</source>
        <translation>跟随要素的地图的编号；−1 表示没有。</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>What is left free at each side, in parts of the feature&apos;s size.</source>
        <translation>每边留出的空白，占要素大小的比例。</translation>
    </message>
    <message>
        <source>The scale of the map on all pages; 0 for one that the feature fits.</source>
        <translation>地图在所有页上的比例尺；0 表示适合要素的比例尺。</translation>
    </message>
    <message>
        <source>Scales to choose from</source>
        <translation>可选比例尺</translation>
    </message>
    <message>
        <source>The map gets the largest of these that shows the whole feature. Where none does, or none is given, it is fitted freely.</source>
        <translation>地图采用其中能显示整个要素的最大比例尺。若都不能或未给出，则自由适配。</translation>
    </message>
    <message>
        <source>Main part</source>
        <translation>主体部分</translation>
    </message>
    <message>
        <source>Whether the map shows the largest part of the feature with what lies near, and lets far islands go.</source>
        <translation>地图是否显示要素的最大部分及其附近，而舍去远处的岛屿。</translation>
    </message>
    <message>
        <source>Along lines</source>
        <translation>沿线</translation>
    </message>
    <message>
        <source>Whether the map is turned so that a line leads from left to right.</source>
        <translation>是否旋转地图使线从左到右延伸。</translation>
    </message>
    <message>
        <source>Rotation by</source>
        <translation>旋转依据</translation>
    </message>
    <message>
        <source>The attribute that holds by how many degrees the map is turned counterclockwise; empty for none.</source>
        <translation>保存地图逆时针旋转度数的属性；空表示没有。</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>What was chosen for files made of the page, and for paper.</source>
        <translation>为由页面生成的文件以及打印所做的选择。</translation>
    </message>
    <message>
        <source>As the page</source>
        <translation>与页面相同</translation>
    </message>
    <message>
        <source>Real size, on several sheets if need be</source>
        <translation>实际大小，必要时分多张</translation>
    </message>
    <message>
        <source>Fitted to one sheet</source>
        <translation>缩放到一张纸</translation>
    </message>
    <message>
        <source>Resolution (DPI)</source>
        <translation>分辨率 (DPI)</translation>
    </message>
    <message>
        <source>Pixels per inch of paper: of images, and of pictures in a file of shapes.</source>
        <translation>每英寸纸张的像素数：用于图像，以及矢量文件中的图片。</translation>
    </message>
    <message>
        <source>Texts as shapes</source>
        <translation>文本转为轮廓</translation>
    </message>
    <message>
        <source>Whether letters are drawn as outlines. They look the same everywhere, and can&apos;t be searched or copied.</source>
        <translation>字母是否绘制成轮廓。这样在任何地方看起来都一样，但不能搜索或复制。</translation>
    </message>
    <message>
        <source>Bleed</source>
        <translation type="vanished">出血</translation>
    </message>
    <message>
        <source>How far the background and what lies over the page&apos;s edges is drawn beyond them in a PDF, so that nothing is left white where paper is cut.</source>
        <translation type="vanished">在 PDF 中，背景和超出页面边缘的内容向外多画多少，以免裁切处留白。</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>裁切标记</translation>
    </message>
    <message>
        <source>Whether a PDF has marks where the paper is to be cut.</source>
        <translation>PDF 是否带有纸张裁切位置的标记。</translation>
    </message>
    <message>
        <source>Layers can be hidden</source>
        <translation>图层可隐藏</translation>
    </message>
    <message>
        <source>Whether who reads the file can hide and show the maps&apos; layers.</source>
        <translation>阅读文件的人能否隐藏和显示地图的图层。</translation>
    </message>
    <message>
        <source>Open afterwards</source>
        <translation>完成后打开</translation>
    </message>
    <message>
        <source>Whether the window opens the file once it is written.</source>
        <translation>文件写好后窗口是否打开它。</translation>
    </message>
    <message>
        <source>The paper of the printer: that of the page, or another one.</source>
        <translation>打印机的纸张：与页面相同，或另一种。</translation>
    </message>
    <message>
        <source>Whether the page is printed as large as it is, on several sheets to be glued where it is larger than the paper, or made to fit on one.</source>
        <translation>页面按实际大小打印（大于纸张时分成多张再粘贴），还是缩放到一张纸上。</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>重叠</translation>
    </message>
    <message>
        <source>How far neighbouring sheets show the same, to be glued there.</source>
        <translation>相邻纸张重复显示的宽度，用于粘贴。</translation>
    </message>
    <message>
        <source>Marks to cut and glue</source>
        <translation>裁切和粘贴标记</translation>
    </message>
    <message>
        <source>Whether several sheets have marks at which they are cut, and lines to which the next one is glued.</source>
        <translation>多张纸是否带有裁切标记，以及粘贴下一张的线。</translation>
    </message>
    <message>
        <source>Numbers of sheets</source>
        <translation>纸张编号</translation>
    </message>
    <message>
        <source>Whether several sheets say in which row and column they belong.</source>
        <translation>多张纸是否注明所在的行和列。</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>What was chosen for files made of the page.</source>
        <translation>为由页面生成的文件所做的选择。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>What was chosen for the page on paper.</source>
        <translation>为页面打印所做的选择。</translation>
    </message>
    <message>
        <source>Bleed (mm)</source>
        <translation>出血（毫米）</translation>
    </message>
    <message>
        <source>How many millimetres the background and what lies over the page&apos;s edges is drawn beyond them in a PDF, so that nothing is left white where paper is cut.</source>
        <translation>在 PDF 中，背景和超出页面边缘的内容向外绘制多少毫米，以免裁切纸张时留下白边。</translation>
    </message>
    <message>
        <source>Allowed folders</source>
        <translation type="vanished">允许的文件夹</translation>
    </message>
    <message>
        <source>Folders of which documents may use files, also of folders in them, without being told of; one a line.</source>
        <translation type="vanished">文档可以使用这些文件夹及其子文件夹中的文件而不再提示；每行一个。</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>没有写完</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>栅格</translation>
    </message>
    <message>
        <source>The nearest pixel</source>
        <translation>最近的像素</translation>
    </message>
    <message>
        <source>Bilinear</source>
        <translation>双线性</translation>
    </message>
    <message>
        <source>Cubic</source>
        <translation>三次卷积</translation>
    </message>
    <message>
        <source>Mean of what a pixel covers</source>
        <translation>像素覆盖范围的平均值</translation>
    </message>
    <message>
        <source>The local file of the pixels (GeoTIFF, JPEG 2000, GeoPackage or MBTiles, PNG or JPEG with a world file), relative to the document.</source>
        <translation>像素所在的本地文件(GeoTIFF、JPEG 2000、GeoPackage 或 MBTiles,或带坐标文件的 PNG 或 JPEG),相对于文档。</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>无数据</translation>
    </message>
    <message>
        <source>Values that mean that there is none, beside what the file says.</source>
        <translation>除文件所述之外表示无数据的值。</translation>
    </message>
    <message>
        <source>How the raster is drawn.</source>
        <translation>栅格如何绘制。</translation>
    </message>
    <message>
        <source>Resampling</source>
        <translation>重采样</translation>
    </message>
    <message>
        <source>How values are found between the pixels of the raster. A palette always takes the nearest one.</source>
        <translation>如何求栅格像素之间的值。调色板总是取最近的像素。</translation>
    </message>
    <message>
        <source>Colours of bands</source>
        <translation>波段颜色</translation>
    </message>
    <message>
        <source>A colour for each value</source>
        <translation>每个值一种颜色</translation>
    </message>
    <message>
        <source>Colours by a number</source>
        <translation>按数值着色</translation>
    </message>
    <message>
        <source>Hillshade</source>
        <translation>山体阴影</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>坡度</translation>
    </message>
    <message>
        <source>Between two numbers</source>
        <translation>两个数之间</translation>
    </message>
    <message>
        <source>From the least to the greatest</source>
        <translation>从最小到最大</translation>
    </message>
    <message>
        <source>By standard deviations</source>
        <translation>按标准差</translation>
    </message>
    <message>
        <source>By percentiles</source>
        <translation>按百分位数</translation>
    </message>
    <message>
        <source>Mixed between the values</source>
        <translation>在各值之间混合</translation>
    </message>
    <message>
        <source>One for each class</source>
        <translation>每类一种</translation>
    </message>
    <message>
        <source>The number of the band, counted from 1.</source>
        <translation>波段的编号,从 1 开始。</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>波段</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Which values get the ends of the colours: 0 and 255 without one, two numbers, or what is found in an overview of the raster.</source>
        <translation>哪些值取颜色的两端:不拉伸时为 0 和 255,或两个数,或从栅格概览中求得的值。</translation>
    </message>
    <message>
        <source>Least value</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Where the colours begin, of a stretch between two numbers.</source>
        <translation>在两个数之间拉伸时颜色的起点。</translation>
    </message>
    <message>
        <source>Greatest value</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Where the colours end, of a stretch between two numbers.</source>
        <translation>在两个数之间拉伸时颜色的终点。</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>To either side of the mean, of a stretch by standard deviations.</source>
        <translation>按标准差拉伸时平均值两侧的范围。</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>截去</translation>
    </message>
    <message>
        <source>Of the values at either end, of a stretch by percentiles.</source>
        <translation>按百分位数拉伸时两端截去的值所占的比例。</translation>
    </message>
    <message>
        <source>Colour ramp</source>
        <translation>色带</translation>
    </message>
    <message>
        <source>The row of colours, as it is known by its name.</source>
        <translation>以其名称为人所知的一列颜色。</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Whether the ramp begins with its last colour.</source>
        <translation>色带是否从最后一种颜色开始。</translation>
    </message>
    <message>
        <source>Values with their colours, in any order; without any, those of the file or the ramp count.</source>
        <translation>值及其颜色,顺序不限;没有时以文件或色带的颜色为准。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>The value, or the first of those that belong to the class.</source>
        <translation>该值,或属于该类的第一个值。</translation>
    </message>
    <message>
        <source>What it is drawn in.</source>
        <translation>绘制所用的颜色。</translation>
    </message>
    <message>
        <source>What a legend calls it; the value where it is empty.</source>
        <translation type="vanished">图例中的名称;为空时用该值。</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>垂直系数</translation>
    </message>
    <message>
        <source>Heights times this are metres: 0.3048 for feet, or more than 1 to show the ground steeper than it is.</source>
        <translation>高程乘以此系数为米:英尺用 0.3048;大于 1 时地形显得比实际陡。</translation>
    </message>
    <message>
        <source>How colours are made of the raster&apos;s values.</source>
        <translation>栅格的值如何变成颜色。</translation>
    </message>
    <message>
        <source>Red band</source>
        <translation>红色波段</translation>
    </message>
    <message>
        <source>Green band</source>
        <translation>绿色波段</translation>
    </message>
    <message>
        <source>Blue band</source>
        <translation>蓝色波段</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>More than 1 brightens the middle, less darkens it.</source>
        <translation>大于 1 使中间调变亮,小于 1 使其变暗。</translation>
    </message>
    <message>
        <source>Whether colours are mixed between the values of classes, or each holds up to the next.</source>
        <translation>颜色是在各类的值之间混合,还是各自保持到下一个值。</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>Where the light comes from, clockwise from the top of the page.</source>
        <translation>光的来向,从页面上方起顺时针。</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>高度角</translation>
    </message>
    <message>
        <source>How high the light stands above the horizon.</source>
        <translation>光源在地平线以上的高度。</translation>
    </message>
    <message>
        <source>From several directions</source>
        <translation>多方向</translation>
    </message>
    <message>
        <source>Whether light comes from west and north and between, most from the side that shows a slope best; the azimuth does not count then.</source>
        <translation>光是否来自西、北及其间各方向,以最能显示坡面的一侧为主;此时方位角不起作用。</translation>
    </message>
    <message>
        <source>Steepest</source>
        <translation>最陡坡度</translation>
    </message>
    <message>
        <source>The slope that gets the last colour of the ramp.</source>
        <translation>取色带最后一种颜色的坡度。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>More than 0 lightens all colours of the layer, less darkens them.</source>
        <translation>大于 0 使图层的所有颜色变亮,小于 0 使其变暗。</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>More than 0 sets colours apart from a middle grey, less brings them to it.</source>
        <translation>大于 0 使颜色远离中灰,小于 0 使其接近中灰。</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>−100 leaves nothing but greys; more than 0 makes colours stronger.</source>
        <translation>−100 只剩灰色;大于 0 使颜色更鲜明。</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation type="vanished">连接</translation>
    </message>
    <message>
        <source>Databases by the names that documents have for them.</source>
        <translation type="vanished">数据库及文档对其使用的名称。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Stands in for the file where it is not empty: the name of a connection to a PostGIS database, as it is called on the computer that opens the document.</source>
        <translation>非空时代替文件:PostGIS 数据库连接的名称,即在打开文档的计算机上的名称。</translation>
    </message>
    <message>
        <source>Its name in the file; the first one where it is empty. Of a connection, the table with its schema, as in “public.roads”.</source>
        <translation>在文件中的名称;留空则取第一个。对于连接,为带模式的表名,如“public.roads”。</translation>
    </message>
    <message>
        <source>Where the server can</source>
        <translation>服务器支持时</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Always, by a known authority</source>
        <translation>始终,且须为已知机构签发</translation>
    </message>
    <message>
        <source>Always, by a known authority and for this host</source>
        <translation>始终,且须为已知机构签发给该主机</translation>
    </message>
    <message>
        <source>What documents call it: letters, digits, “-”, “_” and “.”.</source>
        <translation>文档中使用的名称:字母、数字、“-”、“_”和“.”。</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>The computer that the server runs on, or the folder of its socket; empty for this computer&apos;s own.</source>
        <translation>运行服务器的计算机,或其套接字所在的文件夹;留空表示本机。</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>At which the server listens.</source>
        <translation>服务器监听的端口。</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>Its name on the server; that of the user where it is empty.</source>
        <translation>在服务器上的名称;留空则与用户同名。</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>The server&apos;s user, best one that may only read; your own name where it is empty. The password is asked for, or stands in the file .pgpass.</source>
        <translation>服务器的用户,最好只有读取权限;留空则用您自己的名称。密码会询问,或写在 .pgpass 文件中。</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Whether what is read is encrypted on its way, and whether the server must prove who it is.</source>
        <translation>读取的内容在传输中是否加密,以及服务器是否必须证明身份。</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation type="vanished">超时</translation>
    </message>
    <message>
        <source>So many seconds the server may take for an answer.</source>
        <translation>服务器应答允许的秒数。</translation>
    </message>
    <message>
        <source>Open to documents</source>
        <translation>对文档开放</translation>
    </message>
    <message>
        <source>Whether documents that are opened in the window may read from it without that being asked, whoever made them.</source>
        <translation>在窗口中打开的文档(无论出自何人)是否可以不经询问从中读取。</translation>
    </message>
    <message>
        <source>Timeout in seconds</source>
        <translation>超时（秒）</translation>
    </message>
    <message>
        <source>What a legend calls it; where it is empty, its value, or from where to where it reaches.</source>
        <translation>图例中的名称；为空时是其值，或其起止范围。</translation>
    </message>
    <message>
        <source>there is no field “%1”</source>
        <translation>没有字段“%1”</translation>
    </message>
    <message>
        <source>Across the border where it does not fit</source>
        <translation>放不下时越过边界</translation>
    </message>
    <message>
        <source>Where a label may stand, the most wanted place first: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below or centre; where none is named, all but the last in this order, and some between them.</source>
        <translation>标注可以放在哪里，最希望的位置在前：upperRight（右上）、upperLeft（左上）、lowerRight（右下）、lowerLeft（左下）、right（右）、left（左）、above（上）、below（下）或 centre（正中）；不指定时按此顺序使用除最后一个以外的所有位置，以及其间的一些位置。</translation>
    </message>
    <message>
        <source>Whether a label that does not fit into its area is left out, reaches beyond it, or stands beside it with a line that leads there.</source>
        <translation>放不进面内的标注是略去、越出面外，还是放在旁边并用引线相连。</translation>
    </message>
    <message>
        <source>A numeric attribute: no label of a feature with a higher number is given up for others; without one, all count alike.</source>
        <translation>数值属性：数值较大的要素的标注不会为其他标注让出；没有时所有标注同等重要。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Along the area</source>
        <translation>沿面的走向</translation>
    </message>
    <message>
        <source>Spread over the area</source>
        <translation>在面内分散排列</translation>
    </message>
    <message>
        <source>In areas</source>
        <translation>在面内</translation>
    </message>
    <message>
        <source>How a label lies in its area: level, along the area&apos;s length, or along it with its letters as far apart as tells how far the area reaches. Where the area holds no such label, it lies level.</source>
        <translation>标注在其面内的排列方式：水平、沿面的长轴，或沿长轴并拉开字距以显示该面的范围。面内放不下这样的标注时，则水平排列。</translation>
    </message>
    <message>
        <source>Level on the line</source>
        <translation>水平置于线上</translation>
    </message>
    <message>
        <source>How the label of a line lies on it; letters stand upright. Level ones turn with no line, as the shields of roads.</source>
        <translation>线的标注如何置于线上；字母保持正立。水平的标注不随线旋转，如道路编号牌。</translation>
    </message>
    <message>
        <source>Round corners</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Round ends</source>
        <translation>圆端</translation>
    </message>
    <message>
        <source>The colour of a box behind the text, as callouts and shields have.</source>
        <translation>文字背后方框的颜色，如标注框和编号牌所用。</translation>
    </message>
    <message>
        <source>Shape of the box</source>
        <translation>方框的形状</translation>
    </message>
    <message>
        <source>Whether the box has corners, round corners or round ends.</source>
        <translation>方框是直角、圆角还是圆端。</translation>
    </message>
    <message>
        <source>Features of the font</source>
        <translation>字体特性</translation>
    </message>
    <message>
        <source>OpenType features by their tags, where the font has them: smcp for small capitals, onum for old-style and lnum for lining figures, tnum for figures of one width, dlig for rare ligatures, ss01 for a stylistic set; liga=0 for no ligatures.</source>
        <translation>按标记列出的 OpenType 特性，字体具备时生效：smcp 为小型大写字母，onum 为旧式数字，lnum 为等高数字，tnum 为等宽数字，dlig 为罕用连字，ss01 为一组样式；liga=0 表示不用连字。</translation>
    </message>
    <message>
        <source>How the labels of all layers are placed against each other.</source>
        <translation>所有图层的标注如何相互协调放置。</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>投入</translation>
    </message>
    <message>
        <source>How many times as long as usual the search for their places may take. More labels find a place, where many are in each other&apos;s way.</source>
        <translation>为标注寻找位置的时间最多为平常的多少倍。在许多标注相互妨碍之处，更多的标注能找到位置。</translation>
    </message>
    <message>
        <source>Label placement</source>
        <translation>标注放置</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>None: the layer is the whole globe</source>
        <translation>无：该图层是整个地球</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Layer of the file</source>
        <translation>文件中的图层</translation>
    </message>
    <message>
        <source>Geometries</source>
        <translation>几何</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>尚未统计</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>The file names none</source>
        <translation>文件没有说明</translation>
    </message>
    <message>
        <source>Columns of places</source>
        <translation>位置列</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>The layer has no file.</source>
        <translation>该图层没有文件。</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>正在读取文件。</translation>
    </message>
    <message>
        <source>The file has no layer “%1”.</source>
        <translation>文件中没有图层“%1”。</translation>
    </message>
    <message>
        <source>The file names no coordinate system.</source>
        <translation>文件没有说明坐标系。</translation>
    </message>
    <message>
        <source>The file says: %1.</source>
        <translation>文件中的坐标系：%1。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Pages %1 and %2 would both be written to %3, so nothing was written; tell them apart, as with “[page]” in the name.</source>
        <translation>第 %1 页和第 %2 页都会写入 %3，因此什么也没有写；请加以区分，例如在名称中使用“[page]”。</translation>
    </message>
    <message>
        <source>%1: “[%2]” stands for nothing in the name of a file; use “[page]”, “[page:name]”, “[pages]” or “[field:name]”.</source>
        <translation>%1：“[%2]”在文件名中没有意义；请使用“[page]”、“[page:name]”、“[pages]”或“[field:name]”。</translation>
    </message>
</context>
<context>
    <name>FileReach</name>
    <message>
        <source>it lies outside the document&apos;s folder; move it there, or pass --allow %1</source>
        <translation>它位于文档所在文件夹之外；请将其移到该文件夹中，或指定 --allow %1</translation>
    </message>
    <message>
        <source>it leads to %1, outside the document&apos;s folder; put a copy there, or pass --allow %2</source>
        <translation>它指向 %1，位于文档所在文件夹之外；请在该文件夹中放一份副本，或指定 --allow %2</translation>
    </message>
</context>
<context>
    <name>FileSaver</name>
    <message>
        <source>its folder does not exist</source>
        <translation type="vanished">所在文件夹不存在</translation>
    </message>
    <message>
        <source>there is no room for it</source>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>这是一个文件夹</translation>
    </message>
    <message>
        <source>choose a file name</source>
        <translation type="vanished">请选择文件名</translation>
    </message>
    <message>
        <source>create the folder or choose another</source>
        <translation type="vanished">请创建该文件夹或选择其他文件夹</translation>
    </message>
    <message>
        <source>choose a place where you may write</source>
        <translation>请选择有写入权限的位置</translation>
    </message>
    <message>
        <source>free some space or choose another place</source>
        <translation>请释放空间或选择其他位置</translation>
    </message>
    <message>
        <source>check the disk or choose another place</source>
        <translation>请检查磁盘或选择其他位置</translation>
    </message>
    <message>
        <source>No file was named; give it a name.</source>
        <translation>未指定文件；请给出文件名。</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>make it first, or choose another</source>
        <translation>请先创建它，或选择其他文件夹</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>请指定其中的一个文件</translation>
    </message>
    <message>
        <source>choose another name</source>
        <translation>请选择其他名称</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the folder %1 can&apos;t be written (%2)</source>
        <translation>无法写入文件夹 %1（%2）</translation>
    </message>
    <message>
        <source>choose another</source>
        <translation>请选择其他文件夹</translation>
    </message>
    <message>
        <source>this file is write-protected</source>
        <translation>此文件受写保护</translation>
    </message>
    <message>
        <source>choose another name, or unlock it</source>
        <translation>请选择其他名称，或解除保护</translation>
    </message>
    <message>
        <source>choose another place</source>
        <translation>请选择其他位置</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>access control list</source>
        <translation>访问控制列表</translation>
    </message>
    <message>
        <source>its folder could not be written to the disk (%1), so that a power cut may bring back what was there before</source>
        <translation>其所在文件夹无法写入磁盘（%1），断电后可能恢复为先前的内容</translation>
    </message>
    <message>
        <source>the system did not let it keep these of the file before: %1</source>
        <translation>系统不允许保留原文件的以下属性：%1</translation>
    </message>
    <message>
        <source>%1 was saved, but %2.</source>
        <translation>%1 已保存，但%2。</translation>
    </message>
    <message>
        <source>; and </source>
        <translation>；并且</translation>
    </message>
</context>
<context>
    <name>FontNotes</name>
    <message>
        <source>The font %1 is not installed; another one stands in for it.</source>
        <translation>字体 %1 未安装；以其他字体代替。</translation>
    </message>
    <message>
        <source>No font that is installed has these letters, so that boxes stand for them: %1</source>
        <translation>已安装的字体都没有这些字符，因此以方框代替：%1</translation>
    </message>
    <message>
        <source>The font lacks a feature that a text asks for: %1.</source>
        <translation>字体缺少文字所要求的特性：%1。</translation>
    </message>
</context>
<context>
    <name>FrameSettings</name>
    <message>
        <source>a part of a frame of a kind that can&apos;t be stored</source>
        <translation>无法存储的边框组成部分</translation>
    </message>
    <message>
        <source>“%1” is not a paper form; “A4” and “Custom” are</source>
        <translation type="vanished">“%1”不是纸张规格；“A4”和“Custom”才是</translation>
    </message>
</context>
<context>
    <name>GdalErrors</name>
    <message>
        <source>it is a view that calls itself, reads another file or can&apos;t be understood; store its rows as a table</source>
        <translation type="vanished">它是一个调用自身、读取其他文件或无法理解的视图；请将其行存储为表</translation>
    </message>
    <message>
        <source>it holds a view that calls itself or reads another file; store its rows as a table</source>
        <translation>它含有调用自身或读取其他文件的视图；请将其行存储为表</translation>
    </message>
    <message>
        <source>its view takes longer than a file of its size explains; store its rows as a table</source>
        <translation>其视图耗时超出文件大小所能解释的范围；请将其行存储为表</translation>
    </message>
    <message>
        <source>it holds a value that is longer than the file</source>
        <translation>它含有比文件还长的值</translation>
    </message>
    <message>
        <source>it is a view that calls itself, reads another file, uses a function that could take for ever, or can&apos;t be understood; store its rows as a table</source>
        <translation>这是一个调用自身、读取其他文件、使用可能永不结束的函数或无法理解的视图；请将其行存储为表</translation>
    </message>
    <message>
        <source>PROJ knows no way from one to the other, as where they are those of two celestial bodies</source>
        <translation>PROJ 不知道两者之间的转换方法，例如它们属于两个不同的天体</translation>
    </message>
    <message>
        <source>it compares a date with what is none; dates are written like &apos;2024-06-01&apos;, in quotes</source>
        <translation>它把日期与不是日期的内容相比较；日期应写成 &apos;2024-06-01&apos; 的形式并加引号</translation>
    </message>
    <message>
        <source>it compares a field with a value of another kind; texts and dates stand in single quotes, dates like &apos;2024-06-01&apos;, and numbers don&apos;t</source>
        <translation>它把字段与另一种类型的值相比较；文本和日期要加单引号，日期写成 &apos;2024-06-01&apos; 的形式，数字则不加</translation>
    </message>
</context>
<context>
    <name>GeometryProjector</name>
    <message>
        <source>they are geocentric, as X, Y and Z; convert the data to longitude and latitude</source>
        <translation>它们是地心坐标（X、Y、Z）；请将数据转换为经纬度</translation>
    </message>
    <message>
        <source>PROJ knows no way to project into it</source>
        <translation>PROJ 没有投影到该坐标系的方法</translation>
    </message>
    <message>
        <source>their own, “%1”, is neither geographic nor projected; give the source the one that they have in truth</source>
        <translation>其自身的坐标系“%1”既不是地理坐标系，也不是投影坐标系；请为数据源指定其真实的坐标系</translation>
    </message>
    <message>
        <source>PROJ knows no way back from their own, “%1”</source>
        <translation>PROJ 无法从其自身的坐标系“%1”反算</translation>
    </message>
</context>
<context>
    <name>Graticule</name>
    <message>
        <source>the graticule “%1” of the map “%2” has an interval of %3 degrees, which makes %4 lines; at most %5 are drawn, so an interval is chosen for it; enter one of %6 degrees or more</source>
        <translation>地图“%2”的经纬网“%1”间隔为 %3 度，将产生 %4 条线；最多绘制 %5 条，因此将自动选择间隔；请输入不小于 %6 度的间隔</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>the grid “%1” of the map “%2” has a spacing of %3 map units, which makes %4 lines; at most %5 are drawn, so a spacing is chosen for it; enter one of %6 map units or more</source>
        <translation>地图“%2”的格网“%1”的间距为 %3 个地图单位，这会产生 %4 条线；最多绘制 %5 条，因此自动选择了间距；请输入 %6 个或更多地图单位的间距</translation>
    </message>
</context>
<context>
    <name>Grouping</name>
    <message>
        <source>Groups lie at most %1 deep in each other; ungroup some of them first.</source>
        <translation>组最多嵌套 %1 层；请先取消其中一些组合。</translation>
    </message>
    <message>
        <source>Group the selected elements</source>
        <translation>组合所选元素</translation>
    </message>
    <message>
        <source>Ungroup the selected elements</source>
        <translation>取消组合所选元素</translation>
    </message>
</context>
<context>
    <name>Guides</name>
    <message>
        <source>x %1 cm</source>
        <translation>x %1 厘米</translation>
    </message>
    <message>
        <source>y %1 cm</source>
        <translation>y %1 厘米</translation>
    </message>
</context>
<context>
    <name>HistoryQuestion</name>
    <message>
        <source>Page settings can&apos;t be undone.</source>
        <translation>页面设置无法撤销。</translation>
    </message>
    <message>
        <source>Where they scale the elements to another page size, what was done before can be neither undone nor redone any more:</source>
        <translation>如果将元素缩放到另一页面尺寸，则以下操作将无法再撤销或重做：</translation>
    </message>
    <message>
        <source>Another layout can&apos;t be undone.</source>
        <translation>更换布局无法撤销。</translation>
    </message>
    <message>
        <source>With a template&apos;s layout, what was done before can be neither undone nor redone any more:</source>
        <translation>采用模板的布局后，以下操作将无法再撤销或重做：</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>……以及另外 %1 条。</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>HostCommands</name>
    <message>
        <source>Delete the selected elements</source>
        <translation>删除所选元素</translation>
    </message>
</context>
<context>
    <name>Identify</name>
    <message>
        <source>Band %1</source>
        <translation>波段 %1</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>无数据</translation>
    </message>
</context>
<context>
    <name>IdentifyPanel</name>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>Features at a place of the map</source>
        <translation>地图某处的要素</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>There are more features here.</source>
        <translation>此处还有更多要素。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>No features here</source>
        <translation>此处无要素</translation>
    </message>
</context>
<context>
    <name>ImageTarget</name>
    <message>
        <source>%1: the folder %2 does not exist; make it first.</source>
        <translation type="vanished">%1：文件夹 %2 不存在；请先创建。</translation>
    </message>
    <message>
        <source>%1: the folder %2 can&apos;t be written (%3); choose another.</source>
        <translation type="vanished">%1：无法写入文件夹 %2（%3）；请选择其他文件夹。</translation>
    </message>
    <message>
        <source>%1 is a folder; name a file in it.</source>
        <translation type="vanished">%1 是文件夹；请指定其中的文件。</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file for the image.</source>
        <translation type="vanished">%1 就是文档本身；请为图像指定其他文件。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation type="vanished">无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is not an ordinary file; name another.</source>
        <translation type="vanished">%1 不是普通文件；请指定其他文件。</translation>
    </message>
    <message>
        <source>%1 is write-protected; name another file or unlock it.</source>
        <translation type="vanished">%1 已写保护；请指定其他文件或解除写保护。</translation>
    </message>
    <message>
        <source>%1: the image would have no pixels; give more DPI.</source>
        <translation>%1：图像将没有像素；请提高 DPI。</translation>
    </message>
    <message>
        <source>%1: the image would be %2 × %3 pixels, and a %4 has at most %5 on a side; give less DPI, or write a TIFF.</source>
        <translation>%1：图像将为 %2 × %3 像素，而 %4 每边最多 %5 像素；请降低 DPI，或写为 TIFF。</translation>
    </message>
    <message>
        <source>%1: the image would be %2 × %3 pixels, and a BMP holds at most 4 GB; give less DPI, or write a TIFF.</source>
        <translation>%1：图像将为 %2 × %3 像素，而 BMP 最多容纳 4 GB；请降低 DPI，或写为 TIFF。</translation>
    </message>
    <message>
        <source>%1: drawing %2 × %3 pixels takes %4 GB on the disk, and %5 GB are free; give less DPI, or make room.</source>
        <translation>%1：绘制 %2 × %3 像素需要 %4 GB 磁盘空间，可用 %5 GB；请降低 DPI，或释放空间。</translation>
    </message>
    <message>
        <source>%1: a JPEG of %2 × %3 pixels takes %4 GB of memory, and this machine has %5 GB; give less DPI, or write a PNG or TIFF.</source>
        <translation type="vanished">%1：%2 × %3 像素的 JPEG 需要 %4 GB 内存，本机有 %5 GB；请降低 DPI，或写为 PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>%1: no working folder can be made in %2: %3.</source>
        <translation>%1：无法在 %2 中创建工作文件夹：%3。</translation>
    </message>
    <message>
        <source>%1 was not written: the image can&apos;t be read again.</source>
        <translation>%1 未写入：图像无法重新读取。</translation>
    </message>
    <message>
        <source>%1 was not written: the image has not the size that it should have.</source>
        <translation>%1 未写入：图像大小不符。</translation>
    </message>
    <message>
        <source>%1 was not written: the end of the image is missing; is the disk full?</source>
        <translation>%1 未写入：图像末尾缺失；磁盘是否已满？</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation>未写入 %1：%2。</translation>
    </message>
    <message>
        <source>the image file could not be created</source>
        <translation>无法创建图像文件</translation>
    </message>
    <message>
        <source>%1 was not written: %2. Is the disk full?</source>
        <translation>%1 未写入：%2。磁盘是否已满？</translation>
    </message>
    <message>
        <source>%1 is a file that the page is drawn from; name another file for the image.</source>
        <translation type="vanished">%1 是绘制此页面所用的文件；请为图像指定其他文件。</translation>
    </message>
    <message>
        <source>%1 was not written: its end is missing; is the disk full?</source>
        <translation>未写入 %1：缺少结尾；磁盘是否已满？</translation>
    </message>
    <message>
        <source>%1: a %2 of %3 × %4 pixels takes %5 GB of memory, and this machine has %6 GB; give less DPI, or write a PNG or TIFF.</source>
        <translation>%1：%3 × %4 像素的 %2 需要 %5 GB 内存，而本机只有 %6 GB；请降低 DPI，或写成 PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>%1 was written, but not %2, which says where it lies: %3.</source>
        <translation>%1 已写入，但说明其位置的 %2 未写入：%3。</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 就是文档本身；请指定另一个文件。</translation>
    </message>
    <message>
        <source>%1 is a file that the page is drawn from; name another file.</source>
        <translation>%1 是绘制页面所用的文件；请指定另一个文件。</translation>
    </message>
</context>
<context>
    <name>IndexedLayer</name>
    <message>
        <source>the index in “%1” is damaged; remove that folder, or give --no-cache</source>
        <translation>“%1”中的索引已损坏；请删除该文件夹，或使用 --no-cache</translation>
    </message>
</context>
<context>
    <name>InfoSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation type="vanished">.kdx 文档。</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>输出 JSON,供程序使用。</translation>
    </message>
    <message>
        <source>%1: the folder holds no file of data.</source>
        <translation>%1：该文件夹不含数据文件。</translation>
    </message>
    <message>
        <source>The .kdx document, or a file or folder of data.</source>
        <translation type="vanished">.kdx 文档，或数据文件或文件夹。</translation>
    </message>
    <message>
        <source>%1: this is neither a map document (.kdx) nor a file of data by its name; name one of these.</source>
        <translation>%1：从名称看，它既不是地图文档（.kdx）也不是数据文件；请指定其中之一。</translation>
    </message>
    <message>
        <source>With --json, tell of each layer how many of its labels find a place. It reads all features.</source>
        <translation type="vanished">与 --json 一起使用：说明每个图层有多少注记找到了位置。这会读取所有要素。</translation>
    </message>
    <message>
        <source>The .kdx document, a file or folder of data, or connection:NAME.</source>
        <translation>.kdx 文档、数据文件或文件夹,或 connection:NAME。</translation>
    </message>
    <message>
        <source>%1 has no table &quot;%2&quot; that its user may read; it has: %3.</source>
        <translation>%1 没有其用户可以读取的表“%2”;现有:%3。</translation>
    </message>
    <message>
        <source>Tell of each layer how many of its labels find a place. It reads all features.</source>
        <translation>说明每个图层有多少注记找到了位置。为此会读取所有要素。</translation>
    </message>
</context>
<context>
    <name>InsertTool</name>
    <message>
        <source>Insert a Picture</source>
        <translation>插入图片</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)</source>
        <translation>图片 (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 厘米</translation>
    </message>
    <message>
        <source>%1 cm, %2°</source>
        <translation>%1 厘米，%2°</translation>
    </message>
    <message>
        <source>Embed the picture in the document</source>
        <translation>将图片嵌入文档</translation>
    </message>
</context>
<context>
    <name>JoinDialog</name>
    <message>
        <source>Which table is to be joined?</source>
        <translation>要连接哪个表？</translation>
    </message>
    <message>
        <source>Joined Table</source>
        <translation>连接的表</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>Stands before the names of the table&apos;s fields</source>
        <translation>放在表的字段名之前</translation>
    </message>
    <message>
        <source>The first rows of the table</source>
        <translation>表的前几行</translation>
    </message>
    <message>
        <source>All %1 features found a row.</source>
        <translation>全部 %1 个要素都找到了对应的行。</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>Count the features that find a row</source>
        <translation>统计找到对应行的要素数</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Layer of the file</source>
        <translation>文件中的图层(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Key of the features</source>
        <translation>要素的键(&amp;K)</translation>
    </message>
    <message>
        <source>K&amp;ey of the table</source>
        <translation>表的键(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Prefix</source>
        <translation>前缀(&amp;P)</translation>
    </message>
</context>
<context>
    <name>JoinKeys</name>
    <message>
        <source>No field of “%1” has the name or the values of a field of the layer; name the keys.</source>
        <translation>“%1”中没有字段与图层的字段同名或同值；请指定键。</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>no file was named; choose a %1 file</source>
        <translation>没有指定文件；请选择 %1 文件</translation>
    </message>
    <message>
        <source>there is no such file; check the name and the folder</source>
        <translation>没有此文件；请检查文件名和文件夹</translation>
    </message>
    <message>
        <source>this is a folder; choose a %1 file in it</source>
        <translation>这是文件夹；请选择其中的 %1 文件</translation>
    </message>
    <message>
        <source>this is no ordinary file; choose a %1 file</source>
        <translation>这不是普通文件；请选择 %1 文件</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行，第 %2 列</translation>
    </message>
    <message>
        <source>%1: this is not JSON (%2); mend the file in a text editor or open another one</source>
        <translation>%1：这不是 JSON（%2）；请在文本编辑器中修正文件，或打开其他文件</translation>
    </message>
    <message>
        <source>the file can&apos;t be read (%1); make it readable or choose another one</source>
        <translation>无法读取文件（%1）；请使其可读或选择其他文件</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB, too large for a %2; choose another one</source>
        <translation>文件大于 %1 MB，对%2来说过大；请选择其他文件</translation>
    </message>
    <message>
        <source>the file can&apos;t be read (%1); check the disk</source>
        <translation>无法读取文件（%1）；请检查磁盘</translation>
    </message>
    <message>
        <source>the file holds a list where a %1 holds an object; choose another one</source>
        <translation>文件中是列表，而%1应为对象；请选择其他文件</translation>
    </message>
</context>
<context>
    <name>KeptConnections</name>
    <message>
        <source>The settings could not be written; make %1 writable.</source>
        <translation>无法写入设置;请使 %1 可写。</translation>
    </message>
    <message>
        <source>The connections in %1 could not be read; correct its entry “connections”, or remove it.</source>
        <translation>无法读取 %1 中的连接;请更正其中的“connections”条目,或将其删除。</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>它不是对象</translation>
    </message>
    <message>
        <source>The connection “%1” in %2 is left out: %3. Correct it there, or remove it with plotvane connections remove %1.</source>
        <translation>%2 中的连接“%1”已略过:%3。请在该处更正,或用 plotvane connections remove %1 将其删除。</translation>
    </message>
</context>
<context>
    <name>LabelReader</name>
    <message>
        <source>The text “%1” of the labels of %2 is not understood, so they show the attribute: %3.</source>
        <translation>无法理解%2的标注文字“%1”，因此显示属性：%3。</translation>
    </message>
</context>
<context>
    <name>LabelSettings</name>
    <message>
        <source>names no field; leave out the labels</source>
        <translation type="vanished">没有指定字段；请去掉标注</translation>
    </message>
    <message>
        <source>is not above that of the class before</source>
        <translation>不大于前一类的值</translation>
    </message>
    <message>
        <source>“%1” is no place; there are: %2</source>
        <translation>“%1”不是位置；可用的有：%2</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>Groups lie at most %1 deep in each other; ungroup some of them first.</source>
        <translation>组最多嵌套 %1 层；请先取消其中一些组合。</translation>
    </message>
    <message>
        <source>Raise layers</source>
        <translation>上移图层</translation>
    </message>
    <message>
        <source>Lower layers</source>
        <translation>下移图层</translation>
    </message>
    <message>
        <source>A group can&apos;t lie in itself.</source>
        <translation>组不能位于自身之中。</translation>
    </message>
    <message>
        <source>Move layers</source>
        <translation>移动图层</translation>
    </message>
    <message>
        <source>Copy layers</source>
        <translation>复制图层</translation>
    </message>
    <message>
        <source>Duplicate layers</source>
        <translation>创建图层副本</translation>
    </message>
    <message>
        <source>Remove layers</source>
        <translation>移除图层</translation>
    </message>
    <message>
        <source>There is no group next to it; Group makes one.</source>
        <translation>旁边没有组；用“组合”创建一个。</translation>
    </message>
    <message>
        <source>It lies in no group.</source>
        <translation>它不在任何组中。</translation>
    </message>
    <message>
        <source>Layers and groups of one map can be grouped; choose some.</source>
        <translation>同一地图的图层和组可以组合；请选择一些。</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新建组</translation>
    </message>
    <message>
        <source>Group layers</source>
        <translation>组合图层</translation>
    </message>
    <message>
        <source>Groups can be taken apart; choose one.</source>
        <translation>组可以解散；请选择一个。</translation>
    </message>
    <message>
        <source>Ungroup layers</source>
        <translation>解散图层组</translation>
    </message>
    <message>
        <source>Cut layers</source>
        <translation>剪切图层</translation>
    </message>
    <message>
        <source>The clipboard holds no layers; copy some in the contents.</source>
        <translation>剪贴板中没有图层；请在内容列表中复制一些。</translation>
    </message>
    <message>
        <source>Paste layers</source>
        <translation>粘贴图层</translation>
    </message>
    <message>
        <source>the data frame is locked; Plotvane_UnlockDataFrame unlocks it.</source>
        <translation>数据框已锁定；Plotvane_UnlockDataFrame 可将其解锁。</translation>
    </message>
    <message>
        <source>Show layers</source>
        <translation>显示图层</translation>
    </message>
    <message>
        <source>Hide layers</source>
        <translation>隐藏图层</translation>
    </message>
    <message>
        <source>Rename “%1”</source>
        <translation>重命名“%1”</translation>
    </message>
    <message>
        <source>There is nothing in it that a map could show.</source>
        <translation>其中没有地图可以显示的内容。</translation>
    </message>
    <message>
        <source>A map can&apos;t show that much or that little.</source>
        <translation>地图无法显示这么多或这么少的内容。</translation>
    </message>
    <message>
        <source>It has no limits of scale.</source>
        <translation>它没有比例尺限制。</translation>
    </message>
    <message>
        <source>It has no file.</source>
        <translation>它没有文件。</translation>
    </message>
    <message>
        <source>Repair the source of “%1”</source>
        <translation>修复“%1”的数据源</translation>
    </message>
    <message>
        <source>There are %1 places there; give one from 1 to %1.</source>
        <translation>那里有 %1 个位置；请给出 1 到 %1 之间的一个。</translation>
    </message>
</context>
<context>
    <name>LayerAdding</name>
    <message>
        <source>All data (%1)</source>
        <translation>所有数据 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 features read</source>
        <translation>已读取 %1 个要素</translation>
    </message>
    <message>
        <source>Add Layers</source>
        <translation>添加图层</translation>
    </message>
    <message>
        <source>There is no file of data in “%1”.</source>
        <translation>“%1”中没有数据文件。</translation>
    </message>
    <message>
        <source>No connection to a database is known; Edit › Connections… adds one.</source>
        <translation>没有已知的数据库连接;请在“编辑 › 连接…”中添加。</translation>
    </message>
    <message>
        <source>Add Layers from Database</source>
        <translation>从数据库添加图层</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>连接:</translation>
    </message>
</context>
<context>
    <name>LayerArchive</name>
    <message>
        <source>is larger than maxScale</source>
        <translation type="vanished">大于 maxScale</translation>
    </message>
    <message>
        <source>Layer “%1”: %2</source>
        <translation type="vanished">图层“%1”：%2</translation>
    </message>
    <message>
        <source>is a layer that can&apos;t be stored</source>
        <translation type="vanished">是无法存储的图层</translation>
    </message>
</context>
<context>
    <name>LayerClasses</name>
    <message>
        <source>the method is one of %1</source>
        <translation>方法应为以下之一：%1</translation>
    </message>
    <message>
        <source>“%1” is no option; there are %2</source>
        <translation>“%1”不是选项；可用的有 %2</translation>
    </message>
    <message>
        <source>“%1” is written as in %2</source>
        <translation>“%1”应写成 %2 的形式</translation>
    </message>
    <message>
        <source>the method “own” needs breaks, as in breaks=10;100</source>
        <translation>方法“own”需要分界值，例如 breaks=10;100</translation>
    </message>
    <message>
        <source>Only a layer of features has classes; write layer:MAP/LAYER.</source>
        <translation>只有要素图层才有分类；请写 layer:地图/图层。</translation>
    </message>
    <message>
        <source>each of the breaks is larger than the one before, as in breaks=10;100</source>
        <translation>每个断点都须大于前一个，例如 breaks=10;100</translation>
    </message>
</context>
<context>
    <name>LayerClip</name>
    <message>
        <source>is not “%1”, so these are no layers</source>
        <translation>不是“%1”，因此这些不是图层</translation>
    </message>
    <message>
        <source>the layers were copied by a newer version of Plotvane, as version %1</source>
        <translation>这些图层由较新版本的 Plotvane 复制，版本为 %1</translation>
    </message>
    <message>
        <source>The layers take %1 MB, and the clipboard takes %2; copy fewer of them.</source>
        <translation>图层占 %1 MB，而剪贴板最多容纳 %2 MB；请少复制一些。</translation>
    </message>
    <message>
        <source>The layers can&apos;t be copied: %1.</source>
        <translation>无法复制图层：%1。</translation>
    </message>
    <message>
        <source>The layers on the clipboard can&apos;t be read: %1; copy them anew.</source>
        <translation>无法读取剪贴板中的图层：%1；请重新复制。</translation>
    </message>
</context>
<context>
    <name>LayerCommands</name>
    <message>
        <source>Where is the file of “%1”?</source>
        <translation>“%1”的文件在哪里？</translation>
    </message>
</context>
<context>
    <name>LayerSettings</name>
    <message>
        <source>Layer “%1”: %2</source>
        <translation>图层“%1”：%2</translation>
    </message>
    <message>
        <source>is larger than maxScale</source>
        <translation>大于 maxScale</translation>
    </message>
    <message>
        <source>is a layer that can&apos;t be stored</source>
        <translation>是无法存储的图层</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation>组嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>is missing; name the file of the data</source>
        <translation>缺失；请给出数据文件</translation>
    </message>
    <message>
        <source>Layer “%1”: no coordinate system is known for the raster; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation>图层“%1”:栅格的坐标系未知;其坐标按地图的坐标处理。请在数据源的“coordinateSystem”字段中指定坐标系。</translation>
    </message>
</context>
<context>
    <name>LayerSheet</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The file names no coordinate system.</source>
        <translation type="vanished">文件没有说明坐标系。</translation>
    </message>
    <message>
        <source>The file says: %1.</source>
        <translation type="vanished">文件中的坐标系：%1。</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>不透明度(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>Count the features that pass the filter</source>
        <translation>统计通过筛选的要素数</translation>
    </message>
    <message>
        <source>Edit &amp;Filter…</source>
        <translation>编辑筛选条件(&amp;F)…</translation>
    </message>
    <message>
        <source>All %1 features found their rows.</source>
        <translation>全部 %1 个要素都找到了各自的行。</translation>
    </message>
    <message>
        <source>Count the features that find a row</source>
        <translation>统计找到对应行的要素数</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>As the &amp;File Says</source>
        <translation>以文件为准(&amp;F)</translation>
    </message>
    <message>
        <source>Count the features that each class takes</source>
        <translation>统计每一类的要素数</translation>
    </message>
    <message>
        <source>Make C&amp;lasses…</source>
        <translation>分类(&amp;L)…</translation>
    </message>
    <message>
        <source>Make classes of the layer by the values of a field</source>
        <translation>按字段的值对图层分类</translation>
    </message>
    <message>
        <source>Features: %1.</source>
        <translation>要素：%1。</translation>
    </message>
    <message>
        <source>In no class: %1.</source>
        <translation>不属于任何类：%1。</translation>
    </message>
    <message>
        <source>Layer “%1”</source>
        <translation>图层“%1”</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Joined Tables</source>
        <translation>连接的表</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标注</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>数据来源</translation>
    </message>
    <message>
        <source>No table is joined.</source>
        <translation>没有连接任何表。</translation>
    </message>
</context>
<context>
    <name>LayerSteps</name>
    <message>
        <source>there is no &quot;%1&quot;; write layer:MAP/LAYER, where LAYER may be a group, or map:MAP; plotvane info lists them.</source>
        <translation>没有“%1”；请写 layer:MAP/LAYER（LAYER 可以是组）或 map:MAP；plotvane info 会列出它们。</translation>
    </message>
    <message>
        <source>only one layer of features can be counted.</source>
        <translation>只能统计一个要素图层。</translation>
    </message>
    <message>
        <source>only one layer of features can be joined to a table.</source>
        <translation>只能把一个要素图层与表连接。</translation>
    </message>
</context>
<context>
    <name>LayerStyling</name>
    <message>
        <source>Paths</source>
        <translation>小路</translation>
    </message>
    <message>
        <source>Streets</source>
        <translation>街道</translation>
    </message>
    <message>
        <source>Secondary roads</source>
        <translation>次要道路</translation>
    </message>
    <message>
        <source>Main roads</source>
        <translation>主要道路</translation>
    </message>
    <message>
        <source>Motorways</source>
        <translation>高速公路</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>drawn by “%1”, the heavier roads wider</source>
        <translation>按“%1”绘制，重要道路较宽</translation>
    </message>
    <message>
        <source>coloured by “%1”</source>
        <translation>按“%1”着色</translation>
    </message>
    <message>
        <source>marks sized by “%1”, in natural breaks (Jenks)</source>
        <translation>标记大小按“%1”，自然断点（Jenks）</translation>
    </message>
    <message>
        <source>shaded by “%1”, in natural breaks (Jenks)</source>
        <translation>按“%1”分级着色，自然断点（Jenks）</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>颜色 %1</translation>
    </message>
    <message>
        <source>coloured so that neighbours differ</source>
        <translation>着色使相邻区域不同</translation>
    </message>
    <message>
        <source>drawn as its name says</source>
        <translation>按其名称的含义绘制</translation>
    </message>
    <message>
        <source>in one colour</source>
        <translation>单一颜色</translation>
    </message>
    <message>
        <source>labelled by “%1”</source>
        <translation>用“%1”标注</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1, hillshade</source>
        <translation>%1,山体阴影</translation>
    </message>
    <message>
        <source>has no overviews, so that a picture of all of it takes long; make them, as by gdaladdo</source>
        <translation>没有金字塔概览，因此绘制全图需要很久；请建立概览，例如用 gdaladdo</translation>
    </message>
    <message>
        <source>without outlines, for which most of its areas are too small</source>
        <translation>不画轮廓线，因为多数面太小</translation>
    </message>
    <message>
        <source>with outlines of its own colour, since most of its areas would be too small to see</source>
        <translation type="vanished">轮廓采用其自身的颜色，因为其大部分面太小，否则看不见</translation>
    </message>
    <message>
        <source>with broad outlines, since most of its areas would be too small to see</source>
        <translation>采用较宽的轮廓，因为其大部分面太小，否则看不见</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Open Recent</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>页面布局</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容列表</translation>
    </message>
    <message>
        <source>x 000.00 cm  y 000.00 cm</source>
        <translation>x 000.00 厘米  y 000.00 厘米</translation>
    </message>
    <message>
        <source>Place on the page, from its lower left corner</source>
        <translation>页面上的位置，从左下角算起</translation>
    </message>
    <message>
        <source>Zoom 0000 %</source>
        <translation>缩放 0000%</translation>
    </message>
    <message>
        <source>Size of the page on the screen; 100 % is its size on paper</source>
        <translation>页面在屏幕上的大小；100% 即纸上的大小</translation>
    </message>
    <message>
        <source>%1[*] – Plotvane</source>
        <translation>%1[*] – Plotvane</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <translation>缩放 %1%</translation>
    </message>
    <message>
        <source>x %1 cm  y %2 cm</source>
        <translation>x %1 厘米  y %2 厘米</translation>
    </message>
    <message>
        <source>About Plotvane</source>
        <translation>关于 Plotvane</translation>
    </message>
    <message>
        <source>&lt;b&gt;Plotvane %1&lt;/b&gt;&lt;p&gt;Lays out printed maps.&lt;/p&gt;&lt;p&gt;MIT licence.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Plotvane %1&lt;/b&gt;&lt;p&gt;为印刷地图排版。&lt;/p&gt;&lt;p&gt;MIT 许可证。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Scale of the map in the focus data frame; type another one</source>
        <translation>活动数据框中地图的比例尺；可输入其他值</translation>
    </message>
    <message>
        <source>“%1” is no scale; type one like 1:25,000, 10M or 12.5 million</source>
        <translation>“%1”不是比例尺；请输入如 1:25,000、10M 或 1250万</translation>
    </message>
    <message>
        <source>%1[*] (read-only) – Plotvane</source>
        <translation>%1[*]（只读）– Plotvane</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>开头</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
</context>
<context>
    <name>Map</name>
    <message>
        <source>New map</source>
        <translation>新地图</translation>
    </message>
</context>
<context>
    <name>MapDocument</name>
    <message>
        <source>is not “%1”, so this is no map document</source>
        <translation>不是“%1”，因此这不是地图文档</translation>
    </message>
    <message>
        <source>the document was written by a newer version of Plotvane, as version %1; update Plotvane, or save it there as version %2</source>
        <translation>文档由较新版本的 Plotvane 写成，版本为 %1；请更新 Plotvane，或在那里将其保存为版本 %2</translation>
    </message>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin &lt; xmax and ymin &lt; ymax</source>
        <translation>必须是 xmin, ymin, xmax, ymax，且 xmin &lt; xmax、ymin &lt; ymax</translation>
    </message>
    <message>
        <source>data frames and surrounds can&apos;t lie on a map, only on the page</source>
        <translation type="vanished">数据框和地图整饰要素只能位于页面上，不能位于地图上</translation>
    </message>
    <message>
        <source>maps[%1]: no data frame shows this map; it is left out and will be missing after the next save</source>
        <translation>maps[%1]：没有数据框显示此地图；它将被略去，下次保存后不再存在</translation>
    </message>
    <message>
        <source>map document</source>
        <translation>地图文档</translation>
    </message>
    <message>
        <source>the old file can&apos;t be read to keep it as a backup (%1); save without a backup</source>
        <translation>无法读取旧文件以保留备份（%1）；请不带备份保存</translation>
    </message>
    <message>
        <source>: this field is unknown; it has no effect and will be missing after the next save</source>
        <translation>：此字段未知；它不起作用，下次保存后不再存在</translation>
    </message>
    <message>
        <source>; change this value, then save again</source>
        <translation>；请更改此值后重新保存</translation>
    </message>
    <message>
        <source>There is no document to save; open one or make a new one.</source>
        <translation>没有可保存的文档；请打开或新建一个文档。</translation>
    </message>
    <message>
        <source>The document has no file yet; save it under a name.</source>
        <translation>文档尚无文件；请指定名称保存。</translation>
    </message>
    <message>
        <source>; correct the file or open another one</source>
        <translation>；请修正文件或打开其他文件</translation>
    </message>
    <message>
        <source>the page&apos;s width is %1 cm; set one of %2 to %3 cm in the page setup, then save again</source>
        <translation>页面宽度为 %1 厘米；请在页面设置中改为 %2 至 %3 厘米，然后再次保存</translation>
    </message>
    <message>
        <source>the page&apos;s height is %1 cm; set one of %2 to %3 cm in the page setup, then save again</source>
        <translation>页面高度为 %1 厘米；请在页面设置中改为 %2 至 %3 厘米，然后再次保存</translation>
    </message>
    <message>
        <source>must be more than 0, as in 25000 for a map of 1:25,000</source>
        <translation>必须大于 0，如 1:25,000 的地图为 25000</translation>
    </message>
    <message>
        <source>is for a map with “scaleLocked”; without it the bounds say what is shown</source>
        <translation>只用于带有“scaleLocked”的地图；没有它时由范围决定显示的内容</translation>
    </message>
</context>
<context>
    <name>MapSteps</name>
    <message>
        <source>Zoom the map</source>
        <translation>缩放地图</translation>
    </message>
    <message>
        <source>Move the map in its frame</source>
        <translation>在框内移动地图</translation>
    </message>
    <message>
        <source>Set the map&apos;s extent</source>
        <translation>设置地图范围</translation>
    </message>
    <message>
        <source>Set the map&apos;s scale</source>
        <translation>设置地图比例尺</translation>
    </message>
    <message>
        <source>Show the layer “%1”</source>
        <translation>显示图层“%1”</translation>
    </message>
    <message>
        <source>Hide the layer “%1”</source>
        <translation>隐藏图层“%1”</translation>
    </message>
    <message>
        <source>Show the group “%1”</source>
        <translation>显示组“%1”</translation>
    </message>
    <message>
        <source>Hide the group “%1”</source>
        <translation>隐藏组“%1”</translation>
    </message>
</context>
<context>
    <name>MapSurround</name>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Map surround</source>
        <translation>地图整饰要素</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>指北针</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>比例尺</translation>
    </message>
    <message>
        <source>Scale text</source>
        <translation>比例尺文字</translation>
    </message>
    <message>
        <source>must hold %1 where the scale stands, as in “1:%1”</source>
        <translation type="vanished">在比例尺所在处必须含有 %1，如“1:%1”</translation>
    </message>
    <message>
        <source>%1 is too short to be seen at this scale; enter longer divisions, or 0 to choose their length</source>
        <translation>在此比例尺下 %1 太短，无法看清；请输入更长的分段，或输入 0 以自动选择长度</translation>
    </message>
    <message>
        <source>%1 needs %2 cm at this scale, and the frame is %3 cm wide; enter fewer or shorter divisions, or 0 to choose them, or widen the frame</source>
        <translation>在此比例尺下 %1 需要 %2 厘米，而框架宽 %3 厘米；请输入更少或更短的分段，或输入 0 以自动选择，或加宽框架</translation>
    </message>
    <message>
        <source>“%1” is no place-holder; write a unit of ground (%2), a slash and cm or in, as in “1 cm = {km/cm} km”</source>
        <translation>“%1”不是占位符；请写实地单位（%2）、斜线以及 cm 或 in，例如“1 cm = {km/cm} km”</translation>
    </message>
    <message>
        <source>must hold %1 where the scale stands, as in “1:%1”, or a length of ground, as in “1 cm = {km/cm} km”</source>
        <translation>必须含有表示比例尺的 %1，如“1:%1”，或地面长度，如“1 cm = {km/cm} km”</translation>
    </message>
</context>
<context>
    <name>MapSystem</name>
    <message>
        <source>None: as the file says</source>
        <translation>无：按文件所述</translation>
    </message>
    <message>
        <source>None: plain coordinates in metres</source>
        <translation>无：以米为单位的平面坐标</translation>
    </message>
    <message>
        <source>The coordinate system %1.</source>
        <translation>坐标系%1。</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系</translation>
    </message>
</context>
<context>
    <name>MapTemplate</name>
    <message>
        <source>template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>%1: the template has no data frame for the map; give it one.</source>
        <translation>%1：模板没有用于地图的数据框；请添加一个。</translation>
    </message>
</context>
<context>
    <name>MapView</name>
    <message>
        <source>The page has no data frame, so there is no map to show.</source>
        <translation>页面上没有数据框，因此没有可显示的地图。</translation>
    </message>
</context>
<context>
    <name>NewElements</name>
    <message>
        <source>Insert a text</source>
        <translation>插入文本</translation>
    </message>
    <message>
        <source>Insert a picture</source>
        <translation>插入图片</translation>
    </message>
    <message>
        <source>Insert a line</source>
        <translation>插入线</translation>
    </message>
    <message>
        <source>Insert an arrow</source>
        <translation>插入箭头</translation>
    </message>
    <message>
        <source>Insert a polygon</source>
        <translation>插入多边形</translation>
    </message>
    <message>
        <source>Insert a rectangle</source>
        <translation>插入矩形</translation>
    </message>
    <message>
        <source>Insert an ellipse</source>
        <translation>插入椭圆</translation>
    </message>
    <message>
        <source>Insert a marker</source>
        <translation>插入点标记</translation>
    </message>
    <message>
        <source>%1: the picture is too large to be embedded; link it.</source>
        <translation>%1：图片太大，无法嵌入；请改为链接。</translation>
    </message>
    <message>
        <source>The text has %1 characters, and an element at most %2; insert a part of it.</source>
        <translation>文本有 %1 个字符，而一个元素最多 %2 个；请只插入其中一部分。</translation>
    </message>
</context>
<context>
    <name>NewLayers</name>
    <message>
        <source>%1 (areas)</source>
        <translation type="vanished">%1（面）</translation>
    </message>
    <message>
        <source>%1 (lines)</source>
        <translation type="vanished">%1（线）</translation>
    </message>
    <message>
        <source>%1 (points)</source>
        <translation type="vanished">%1（点）</translation>
    </message>
    <message>
        <source>The document has no page that could hold a map.</source>
        <translation>文档没有可放置地图的页面。</translation>
    </message>
    <message>
        <source>There is nothing to draw in these data.</source>
        <translation>这些数据中没有可绘制的内容。</translation>
    </message>
    <message>
        <source>Add the layer “%1”</source>
        <translation>添加图层“%1”</translation>
    </message>
    <message>
        <source>Add %1 layers</source>
        <translation>添加 %1 个图层</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>文件“%1”没有图层“%2”；它有：%3。</translation>
    </message>
    <message>
        <source>There is no geometry in “%1”, and no column of coordinates: join it as a table to a layer.</source>
        <translation>“%1”中没有几何，也没有坐标列：请将其作为表连接到图层。</translation>
    </message>
</context>
<context>
    <name>NewMap</name>
    <message>
        <source>No data are named; give a file of data.</source>
        <translation type="vanished">未指定数据；请给出数据文件。</translation>
    </message>
    <message>
        <source>There is nothing to draw: no layer of the data has geometries.</source>
        <translation type="vanished">没有可绘制的内容：数据中没有含几何的图层。</translation>
    </message>
    <message>
        <source>There is nothing to draw: the filter “%1” suits no layer of the data.</source>
        <translation>没有可绘制的内容：筛选条件“%1”不适用于数据的任何图层。</translation>
    </message>
    <message>
        <source>The layer “%1” of %2 has no features to show.</source>
        <translation>%2 的图层“%1”没有可显示的要素。</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>文件“%1”没有图层“%2”；它有：%3。</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation type="vanished">无法采用该坐标系：%1。</translation>
    </message>
    <message>
        <source>As asked for.</source>
        <translation>按要求。</translation>
    </message>
    <message>
        <source>plain coordinates</source>
        <translation type="vanished">平面坐标</translation>
    </message>
    <message>
        <source>The data have no coordinate system.</source>
        <translation type="vanished">数据没有坐标系。</translation>
    </message>
    <message>
        <source>Coordinate system %1 (%2)</source>
        <translation>坐标系 %1（%2）</translation>
    </message>
    <message>
        <source>“%1” is no paper; take one of: %2.</source>
        <translation type="vanished">“%1”不是纸张；请选用：%2。</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Page %1, %2</source>
        <translation>页面 %1，%2</translation>
    </message>
    <message>
        <source>The data are broader than high.</source>
        <translation>数据的宽大于高。</translation>
    </message>
    <message>
        <source>The data are higher than broad.</source>
        <translation>数据的高大于宽。</translation>
    </message>
    <message>
        <source>Layer “%1”</source>
        <translation>图层“%1”</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>海洋</translation>
    </message>
    <message>
        <source>template</source>
        <translation type="vanished">模板</translation>
    </message>
    <message>
        <source>%1: the template has no data frame for the map; give it one.</source>
        <translation type="vanished">%1：模板没有用于地图的数据框；请添加一个。</translation>
    </message>
    <message>
        <source>Legend in a corner of the map</source>
        <translation>图例在地图的角上</translation>
    </message>
    <message>
        <source>Nothing of the data lies there.</source>
        <translation>该处没有数据。</translation>
    </message>
    <message>
        <source>Legend beside the map</source>
        <translation>图例在地图旁</translation>
    </message>
    <message>
        <source>It would hide data.</source>
        <translation>否则会遮盖数据。</translation>
    </message>
    <message>
        <source>A north arrow</source>
        <translation>有指北针</translation>
    </message>
    <message>
        <source>No north arrow</source>
        <translation>无指北针</translation>
    </message>
    <message>
        <source>North is up all over the map.</source>
        <translation>整幅地图北方朝上。</translation>
    </message>
    <message>
        <source>The graticule shows where north is.</source>
        <translation>经纬网表示北方。</translation>
    </message>
    <message>
        <source>A graticule</source>
        <translation>有经纬网</translation>
    </message>
    <message>
        <source>No graticule</source>
        <translation>无经纬网</translation>
    </message>
    <message>
        <source>The scale is small.</source>
        <translation>比例尺小。</translation>
    </message>
    <message>
        <source>The scale is large.</source>
        <translation>比例尺大。</translation>
    </message>
    <message>
        <source>Where on the globe the data are is not known.</source>
        <translation type="vanished">不知道数据位于地球何处。</translation>
    </message>
    <message>
        <source>The layer “%1” is left out. %2</source>
        <translation>略去图层“%1”。%2</translation>
    </message>
    <message>
        <source>There are no features that say where the map is, so it shows the world.</source>
        <translation type="vanished">没有要素说明地图位置，因此显示全世界。</translation>
    </message>
    <message>
        <source>Sea around the land</source>
        <translation>陆地周围的海洋</translation>
    </message>
    <message>
        <source>The data hold all the land that the map shows.</source>
        <translation>数据包含地图所示的全部陆地。</translation>
    </message>
    <message>
        <source>Extent of the bulk of the data</source>
        <translation>范围取自数据的主体部分</translation>
    </message>
    <message>
        <source>Texts of the template that stay as they are</source>
        <translation>保持不变的模板文本</translation>
    </message>
    <message>
        <source>The data are about as broad as high.</source>
        <translation>数据的宽与高大致相等。</translation>
    </message>
    <message>
        <source>The layer “%1” of “%2” can&apos;t be shown: its coordinates are geocentric, as X, Y and Z; convert the data to longitude and latitude.</source>
        <translation>无法显示“%2”的图层“%1”：其坐标是地心坐标 X、Y、Z；请将数据转换为经纬度。</translation>
    </message>
    <message>
        <source>No coordinate system is known for the data, so that the map has none, nor a scale. Give the layers one in their sources&apos; field “coordinateSystem”, and the map with --crs or in its tab Coordinate System.</source>
        <translation>数据的坐标系未知，因此地图没有坐标系，也没有比例尺。请在图层数据源的“coordinateSystem”字段中给出坐标系，并用 --crs 或在地图的“坐标系”选项卡中给出地图的坐标系。</translation>
    </message>
    <message>
        <source>There is nothing to draw: the data have no geometries, and no columns of coordinates are known in %1. Call two columns of numbers lon and lat, or x and y.</source>
        <translation type="vanished">没有可绘制的内容：数据没有几何，且在 %1 中找不到坐标列。请将两个数字列命名为 lon 和 lat，或 x 和 y。</translation>
    </message>
    <message>
        <source>There is nothing to draw: no layer of %1 has geometries.</source>
        <translation>没有可绘制的内容：%1 的图层都没有几何。</translation>
    </message>
    <message>
        <source>%1 (it has: %2)</source>
        <translation>%1（现有：%2）</translation>
    </message>
    <message>
        <source>No columns of coordinates are known in %1. Call two columns of numbers lon and lat, or x and y.</source>
        <translation>在 %1 中找不到坐标列。请将两个数字列命名为 lon 和 lat，或 x 和 y。</translation>
    </message>
</context>
<context>
    <name>NewMapDialog</name>
    <message>
        <source>Points</source>
        <translation type="vanished">点</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="vanished">线</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation type="vanished">面</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation type="vanished">混合</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="vanished">表</translation>
    </message>
    <message>
        <source>New Map from Data</source>
        <translation>用数据新建地图</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>标题(&amp;T)</translation>
    </message>
    <message>
        <source>the name of the data</source>
        <translation>数据的名称</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>纸张(&amp;P)</translation>
    </message>
    <message>
        <source>As the data need</source>
        <translation>按数据需要</translation>
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
        <source>&amp;Orientation</source>
        <translation>方向(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Coordinate system</source>
        <translation>坐标系(&amp;C)</translation>
    </message>
    <message>
        <source>one that suits the data; or EPSG:3035</source>
        <translation>适合数据的坐标系；或 EPSG:3035</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>筛选(&amp;F)</translation>
    </message>
    <message>
        <source>all features; or population &gt; 100000</source>
        <translation>所有要素；或 population &gt; 100000</translation>
    </message>
    <message>
        <source>T&amp;emplate</source>
        <translation>模板(&amp;E)</translation>
    </message>
    <message>
        <source>none; or a document whose page is taken</source>
        <translation>无；或采用其页面的文档</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>&amp;Make Map</source>
        <translation>制作地图(&amp;M)</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Map documents (*.kdx)</source>
        <translation>地图文档 (*.kdx)</translation>
    </message>
    <message>
        <source>Add files of data, or drop them here, and check what the map is to show.</source>
        <translation>添加数据文件或拖放到此处，并勾选地图要显示的内容。</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation>无法采用该坐标系：%1。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
</context>
<context>
    <name>NewSubcommand</name>
    <message>
        <source>new: &quot;%1&quot; is no name of a map document; name a .kdx file.</source>
        <translation>new：“%1”不是地图文档的名称；请给出 .kdx 文件。</translation>
    </message>
    <message>
        <source>%1: there is such a file; name another one, or pass --force to replace it.</source>
        <translation>%1：文件已存在；请换个名称，或用 --force 替换。</translation>
    </message>
    <message>
        <source>The .kdx document to make.</source>
        <translation>要制作的 .kdx 文档。</translation>
    </message>
    <message>
        <source>More data, as for --data.</source>
        <translation>更多数据，同 --data。</translation>
    </message>
    <message>
        <source>A file of data, all its layers or one of them; may be given several times.</source>
        <translation type="vanished">数据文件，其所有图层或其中之一；可多次给出。</translation>
    </message>
    <message>
        <source>The title; the name of the data if not given.</source>
        <translation>标题；未给出时为数据的名称。</translation>
    </message>
    <message>
        <source>The paper, such as A3; A4 if not given.</source>
        <translation>纸张，如 A3；未给出时为 A4。</translation>
    </message>
    <message>
        <source>Let the sheet lie. The shape of the data decides if neither is given.</source>
        <translation>横向。两者均未给出时由数据的形状决定。</translation>
    </message>
    <message>
        <source>Let the sheet stand upright.</source>
        <translation>纵向。</translation>
    </message>
    <message>
        <source>The coordinate system of the map, such as EPSG:3035; one that suits the data if not given.</source>
        <translation>地图的坐标系，如 EPSG:3035；未给出时选用适合数据的坐标系。</translation>
    </message>
    <message>
        <source>A document whose page is taken, with all that lies on it; the map goes into its largest data frame.</source>
        <translation>采用其页面及页面上所有内容的文档；地图放入其最大的数据框。</translation>
    </message>
    <message>
        <source>Only features of which this is true, such as &quot;population &gt; 100000&quot;.</source>
        <translation>仅限满足此条件的要素，如 &quot;population &gt; 100000&quot;。</translation>
    </message>
    <message>
        <source>Draw the page into an image, too, at 300 DPI.</source>
        <translation>同时以 300 DPI 将页面绘制为图像。</translation>
    </message>
    <message>
        <source>Print what was chosen, and why.</source>
        <translation>打印所做的选择及原因。</translation>
    </message>
    <message>
        <source>Replace a document of that name.</source>
        <translation>替换同名文档。</translation>
    </message>
    <message>
        <source>new: data are missing; name a file with --data.</source>
        <translation>new：缺少数据；请用 --data 给出文件。</translation>
    </message>
    <message>
        <source>new: --landscape and --portrait exclude each other.</source>
        <translation>new：--landscape 与 --portrait 互斥。</translation>
    </message>
    <message>
        <source>A file of data, all its layers or one of them, or a folder; may be given several times.</source>
        <translation>数据文件（其所有图层或其中之一）或文件夹；可多次给出。</translation>
    </message>
    <message>
        <source>new: the page is that of the template; leave out --paper, --landscape and --portrait.</source>
        <translation>new：页面取自模板；请去掉 --paper、--landscape 和 --portrait。</translation>
    </message>
    <message>
        <source>%1 was made all the same.</source>
        <translation>%1 仍已创建。</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>OpacitySlider</name>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>OutputCommands</name>
    <message>
        <source>Document Properties</source>
        <translation>文档属性</translation>
    </message>
    <message>
        <source>Exporting the page…</source>
        <translation>正在导出页面…</translation>
    </message>
    <message>
        <source>Cancelled; no file was written.</source>
        <translation>已取消；没有写入文件。</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>%1 was written, but no program is known that opens it.</source>
        <translation>已写入 %1，但没有可打开它的程序。</translation>
    </message>
    <message>
        <source>the suffix of %1 names no format; use one of %2.</source>
        <translation>%1 的后缀不是任何格式；请用以下之一：%2。</translation>
    </message>
    <message>
        <source>the page would not be whole; mend the data source or remove what draws it. %1</source>
        <translation>页面将不完整；请修复数据源，或删除使用它的内容。%1</translation>
    </message>
    <message>
        <source>The page that is shown: %1</source>
        <translation>当前显示的页面：%1</translation>
    </message>
    <message>
        <source>All %1 pages of the series</source>
        <translation>系列的全部 %1 页</translation>
    </message>
    <message>
        <source>The page without its series; show one of the series&apos; pages first to export that.</source>
        <translation>不含系列的页面；要导出系列中的某一页，请先显示它。</translation>
    </message>
</context>
<context>
    <name>OutputIntent</name>
    <message>
        <source>the profile %1 can&apos;t be read: %2</source>
        <translation>无法读取配置文件 %1：%2</translation>
    </message>
    <message>
        <source>%1 is no ICC profile, or not a whole one; name another file</source>
        <translation>%1 不是 ICC 配置文件，或不完整；请指定其他文件</translation>
    </message>
    <message>
        <source>%1 is not the profile of a screen or a printer; name one that is</source>
        <translation>%1 不是屏幕或打印机的配置文件；请指定这样的文件</translation>
    </message>
    <message>
        <source>%1 is a profile of %2 colours, and those of the page are RGB; name one for RGB</source>
        <translation>%1 是 %2 颜色的配置文件，而页面的颜色是 RGB；请指定 RGB 的配置文件</translation>
    </message>
    <message>
        <source>%1 is a profile of a version that PDF files can&apos;t hold; name one of version 2 or 4</source>
        <translation>%1 的版本不能放入 PDF 文件；请指定版本 2 或 4 的配置文件</translation>
    </message>
</context>
<context>
    <name>OutputWatch</name>
    <message>
        <source>%1 holds a TIFF: this export writes no &quot;.%2&quot;; rename it to .tif, or name an image that ends in %3.</source>
        <translation>%1 中是 TIFF：此导出不写“.%2”；请将其改名为 .tif，或指定以 %3 结尾的图像。</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation>%1 未写出：已中断。</translation>
    </message>
</context>
<context>
    <name>OutsideFiles</name>
    <message>
        <source>“%1” is no whole path; write one that begins with “/”</source>
        <translation type="vanished">“%1”不是完整路径；请填写以“/”开头的路径</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>The document uses files of other folders: %1.</source>
        <translation type="vanished">该文档使用了其他文件夹中的文件：%1。</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Allowed Folders</source>
        <translation type="vanished">允许的文件夹</translation>
    </message>
    <message>
        <source>The document uses files of other folders than its own: %1. “Allow” lets every document use files there from now on without this message; File › Allowed Folders… takes that back.</source>
        <translation>文档使用了其自身文件夹以外的文件夹中的文件：%1。“允许”使所有文档今后使用那里的文件时不再显示此消息；可在“文件 › 允许的文件夹…”中撤销。</translation>
    </message>
    <message>
        <source>The document wants to read from your databases: %1. “Allow” lets every document do so from now on and reads it anew; Edit › Connections… takes that back.</source>
        <translation>该文档要读取您的数据库:%1。“允许”会让今后的所有文档都能这样做,并重新读取;可在“编辑 › 连接…”中撤回。</translation>
    </message>
    <message>
        <source>The connection “%1” wants a password.</source>
        <translation>连接“%1”需要密码。</translation>
    </message>
    <message>
        <source>Password…</source>
        <translation>密码…</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>My symbols</source>
        <translation type="vanished">我的符号</translation>
    </message>
</context>
<context>
    <name>PageChooser</name>
    <message>
        <source>First page</source>
        <translation>首页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>末页</translation>
    </message>
    <message>
        <source>The page that is shown; type a number, or a part of a name</source>
        <translation>显示的页面；输入页码或名称的一部分</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>共 %1</translation>
    </message>
</context>
<context>
    <name>PageClipboard</name>
    <message>
        <source>Cut the selected elements</source>
        <translation>剪切所选元素</translation>
    </message>
    <message>
        <source>The clipboard holds nothing that can lie on a page; copy elements, a text or a picture.</source>
        <translation>剪贴板中没有可放到页面上的内容；请复制元素、文本或图片。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>The clipboard holds no elements, which alone have a place; copy some.</source>
        <translation>剪贴板中没有元素，而只有元素才有位置；请复制一些。</translation>
    </message>
    <message>
        <source>Paste in place</source>
        <translation>原位粘贴</translation>
    </message>
    <message>
        <source>Duplicate the selected elements</source>
        <translation>复制所选元素</translation>
    </message>
    <message>
        <source>The picture on the clipboard has more than %1 pixels a side; copy a smaller one.</source>
        <translation>剪贴板中的图片每边超过 %1 像素；请复制较小的图片。</translation>
    </message>
    <message>
        <source>The picture on the clipboard can&apos;t be read; save it as a file and paste that.</source>
        <translation>无法读取剪贴板中的图片；请存为文件后粘贴该文件。</translation>
    </message>
    <message>
        <source>The picture on the clipboard is too large to be embedded; save it as a file and paste that.</source>
        <translation>剪贴板中的图片太大，无法嵌入；请存为文件后粘贴该文件。</translation>
    </message>
    <message>
        <source>The text on the clipboard has %1 characters, and an element at most %2; copy a part of it.</source>
        <translation>剪贴板中的文本有 %1 个字符，而元素最多有 %2 个；请复制其中一部分。</translation>
    </message>
    <message>
        <source>The text on the clipboard is blank; copy something else.</source>
        <translation>剪贴板中的文本是空白；请复制别的内容。</translation>
    </message>
    <message>
        <source>Data frames and map surrounds can&apos;t lie in a group; leave the group with Escape first.</source>
        <translation>数据框和整饰要素不能位于组中；请先按 Esc 离开该组。</translation>
    </message>
    <message>
        <source>The clipboard holds layers; paste them in the contents.</source>
        <translation>剪贴板中是图层；请在内容列表中粘贴。</translation>
    </message>
</context>
<context>
    <name>PageComposition</name>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Graticule</source>
        <translation>经纬网</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>图例</translation>
    </message>
    <message>
        <source>1:%1 at the centre of the map</source>
        <translation>地图中心 1:%1</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>数据来源</translation>
    </message>
    <message>
        <source>Map data: [credits]</source>
        <translation>地图数据：[credits]</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>%1: this GDAL can&apos;t write %2; choose another format, or install a GDAL that can.</source>
        <translation>%1：此 GDAL 无法写出 %2；请选择其他格式，或安装支持该格式的 GDAL。</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw; give it one, such as &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</source>
        <translation>%1：文档没有可绘制的页面；请为其添加页面，例如 &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}。</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation>%1 未写出：已中断。</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation>未写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>未写入 %1:%2</translation>
    </message>
    <message>
        <source>%1 was not written: its symbols draw over each other many hundred times; make them smaller, fewer or less dense, or give less DPI.</source>
        <translation type="vanished">%1 未写入：其符号相互叠绘了数百次；请将它们改小、减少或改稀疏，或降低 DPI。</translation>
    </message>
    <message>
        <source>%1 was not written: the font %2 can&apos;t be opened at the moment; start the program again.</source>
        <translation>未写入 %1：目前无法打开字体 %2；请重新启动程序。</translation>
    </message>
    <message>
        <source>%1 was not written: drawing its page takes far more than its size and its data are worth; simplify lines and areas with many vertices or crossings, make symbols smaller, fewer or less dense, or give less DPI.</source>
        <translation>未写入 %1：绘制此页面的开销远超其尺寸和数据所应有的程度；请简化顶点或交叉过多的线和面，将符号改小、减少或放疏，或降低 DPI。</translation>
    </message>
    <message>
        <source>The font %1 is not installed; another one stands in for it.</source>
        <translation type="vanished">字体 %1 未安装；以其他字体代替。</translation>
    </message>
    <message>
        <source>No font that is installed has these letters, so that boxes stand for them: %1</source>
        <translation type="vanished">已安装的字体都没有这些字符，因此以方框代替：%1</translation>
    </message>
</context>
<context>
    <name>PageGesture</name>
    <message>
        <source>Move the selected elements</source>
        <translation>移动所选元素</translation>
    </message>
    <message>
        <source>Resize the selected elements</source>
        <translation>调整所选元素的大小</translation>
    </message>
    <message>
        <source>x %1  y %2 cm</source>
        <translation>x %1  y %2 厘米</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 厘米</translation>
    </message>
</context>
<context>
    <name>PageImage</name>
    <message>
        <source>%1 was not written: there are no elements on the page to crop it to.</source>
        <translation>%1 未写出：页面上没有可供裁剪的元素。</translation>
    </message>
    <message>
        <source>%1 was not written: the map of &quot;%2&quot; has no coordinate system that is known; give it one.</source>
        <translation>%1 未写出：&quot;%2&quot; 的地图没有已知的坐标系；请为其指定。</translation>
    </message>
    <message>
        <source>%1 was not written: no data frame is called &quot;%2&quot;; the page has %3.</source>
        <translation>%1 未写出：没有名为 &quot;%2&quot; 的数据框；页面上有 %3。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>正在绘制</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>正在写出</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>The document as it is stored</source>
        <translation>按存储的文档</translation>
    </message>
</context>
<context>
    <name>PagePrinter</name>
    <message>
        <source>The page was not printed: the file could not be written; is the disk full?</source>
        <translation>页面没有打印：无法写入文件；磁盘满了吗？</translation>
    </message>
    <message>
        <source>The printer %1 does not take the page; look whether it is switched on and ready, or choose another one.</source>
        <translation>打印机 %1 不接受此页面；请查看它是否已开启并就绪，或选择另一台。</translation>
    </message>
    <message>
        <source>Row %1 of %2, column %3 of %4</source>
        <translation>第 %1/%2 行，第 %3/%4 列</translation>
    </message>
    <message>
        <source>There is no printer; name a .pdf file to print into, or set up a printer.</source>
        <translation>没有打印机；请指定要打印到的 .pdf 文件，或设置打印机。</translation>
    </message>
    <message>
        <source>There is no printer %1; there are: %2. A .pdf file can be named, too.</source>
        <translation>没有打印机 %1；现有：%2。也可以指定 .pdf 文件。</translation>
    </message>
    <message>
        <source>Nothing was printed: sheet %1 was asked for, and there are %2.</source>
        <translation>没有打印任何内容：要求从第 %1 张开始，而共有 %2 张。</translation>
    </message>
</context>
<context>
    <name>PageTexts</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>PatternBounds</name>
    <message>
        <source>a pattern of LIKE could be met in too many ways by its long texts; use fewer % in it</source>
        <translation>LIKE 的模式可被其长文本以过多方式匹配；请在其中少用 %</translation>
    </message>
</context>
<context>
    <name>PictureElement</name>
    <message>
        <source>The picture has no file; choose one.</source>
        <translation>图片没有文件；请选择一个。</translation>
    </message>
    <message>
        <source>%1: there is no such picture file; put it there.</source>
        <translation>%1：没有此图片文件；请将其放到该处。</translation>
    </message>
    <message>
        <source>%1: the picture is neither PNG nor JPEG nor SVG; save it as one of these.</source>
        <translation type="vanished">%1：图片既不是 PNG、JPEG 也不是 SVG；请另存为其中一种格式。</translation>
    </message>
    <message>
        <source>%1: the picture&apos;s size can&apos;t be read; save it anew.</source>
        <translation>%1：无法读取图片大小；请重新保存。</translation>
    </message>
    <message>
        <source>%1: the picture has %2 × %3 pixels; make it smaller than %4 pixels a side and %5 pixels in all.</source>
        <translation>%1：图片为 %2 × %3 像素；请将每边缩小到 %4 像素以下，总数缩小到 %5 像素以下。</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be read: %2.</source>
        <translation>%1：无法读取图片：%2。</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be opened.</source>
        <translation>%1：无法打开图片。</translation>
    </message>
    <message>
        <source>%1: the SVG can&apos;t be drawn; save it with a size.</source>
        <translation>%1：无法绘制 SVG；请带尺寸保存。</translation>
    </message>
    <message>
        <source>The embedded picture</source>
        <translation>嵌入的图片</translation>
    </message>
    <message>
        <source>%1: the picture is neither PNG nor JPEG, TIFF, WebP or SVG; save it as one of these.</source>
        <translation>%1：图片既不是 PNG，也不是 JPEG、TIFF、WebP 或 SVG；请另存为其中一种。</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be opened: %2.</source>
        <translation>%1：无法打开图片：%2。</translation>
    </message>
</context>
<context>
    <name>PinnedLabels</name>
    <message>
        <source>Only a layer of features has labels; write layer:MAP/LAYER.</source>
        <translation>只有要素图层才有标注；请写 layer:地图/图层。</translation>
    </message>
    <message>
        <source>The layer “%1” has no labels; give it some first.</source>
        <translation>图层“%1”没有标注；请先为其添加标注。</translation>
    </message>
    <message>
        <source>No feature of the layer “%1” has the key “%2”.</source>
        <translation>图层“%1”中没有键为“%2”的要素。</translation>
    </message>
</context>
<context>
    <name>PluginLibrary</name>
    <message>
        <source>The plug-in is missing: there is no %1. Build it, or name it in PLOTVANE_PLUGIN.</source>
        <translation>缺少插件：没有 %1。请构建插件，或在 PLOTVANE_PLUGIN 中指定。</translation>
    </message>
    <message>
        <source> and no </source>
        <translation>，也没有 </translation>
    </message>
    <message>
        <source>The plug-in can&apos;t be loaded: %1</source>
        <translation>无法加载插件：%1</translation>
    </message>
    <message>
        <source>%1 is no plug-in: it exports no function %2.</source>
        <translation>%1 不是插件：它没有导出函数 %2。</translation>
    </message>
    <message>
        <source>%1: %2 answered no module.</source>
        <translation>%1：%2 没有返回模块。</translation>
    </message>
</context>
<context>
    <name>PointTransform</name>
    <message>
        <source>there is no transformation between them</source>
        <translation>二者之间没有可用的变换</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Printing the page…</source>
        <translation>正在打印页面…</translation>
    </message>
    <message>
        <source>Cancelled; nothing was printed.</source>
        <translation>已取消；没有打印任何内容。</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>The page was sent to %1.</source>
        <translation>页面已发送到 %1。</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>打印预览</translation>
    </message>
    <message>
        <source>Drawing the page…</source>
        <translation>正在绘制页面…</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
</context>
<context>
    <name>PrintOptions</name>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>One sheet of %1, the page at %2 %</source>
        <translation>一张 %1 的纸，页面为 %2 %</translation>
    </message>
    <message>
        <source>%1 sheets of %2, in %3 rows and %4 columns</source>
        <translation>%1 张 %2 的纸，%3 行 %4 列</translation>
    </message>
</context>
<context>
    <name>ProjectionChoice</name>
    <message>
        <source>Equal Earth projection</source>
        <translation>Equal Earth 投影</translation>
    </message>
    <message>
        <source>The data reach round the world, and the Equal Earth projection keeps its areas.</source>
        <translation>数据遍及全球，Equal Earth 投影保持面积。</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal-area projection about the pole</source>
        <translation>以极点为中心的兰伯特等积方位投影</translation>
    </message>
    <message>
        <source>The data lie about a pole, where an azimuthal projection shows all directions alike.</source>
        <translation>数据位于极点周围，方位投影对各方向一视同仁。</translation>
    </message>
    <message>
        <source>cylindrical equal-area projection, true at %1</source>
        <translation>等积圆柱投影，标准纬线 %1</translation>
    </message>
    <message>
        <source>The data lie in a belt along the equator, which a cylindrical projection shows best.</source>
        <translation>数据沿赤道呈带状分布，圆柱投影最合适。</translation>
    </message>
    <message>
        <source>Albers equal-area conic projection, %1 and %2</source>
        <translation>阿伯斯等积圆锥投影，%1 和 %2</translation>
    </message>
    <message>
        <source>The data are broader than high and lie to one side of the equator: a conic projection, its standard parallels a sixth of the height within the edges.</source>
        <translation>数据宽大于高且位于赤道一侧：圆锥投影，标准纬线距边缘为高度的六分之一。</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal-area projection, %1, %2</source>
        <translation>兰伯特等积方位投影，%1，%2</translation>
    </message>
    <message>
        <source>The data are about as broad as high: an azimuthal projection about their middle.</source>
        <translation type="vanished">数据宽高相近：以其中心为中心的方位投影。</translation>
    </message>
    <message>
        <source>The data cover less than %1 km, and this is their zone of UTM.</source>
        <translation>数据范围不足 %1 km，这是其 UTM 带。</translation>
    </message>
    <message>
        <source>The data&apos;s own coordinate system, %1, shows them almost without distortion.</source>
        <translation>数据自身的坐标系 %1 几乎无变形。</translation>
    </message>
    <message>
        <source>An azimuthal projection about the middle of the data shows them best on all sides.</source>
        <translation>以数据中心为中心的方位投影在各方向上效果最好。</translation>
    </message>
    <message>
        <source>plain coordinates</source>
        <translation>平面坐标</translation>
    </message>
    <message>
        <source>Where on the globe the data are is not known.</source>
        <translation>不知道数据位于地球何处。</translation>
    </message>
    <message>
        <source>There are no features that say where the map is, so it shows the world.</source>
        <translation>没有要素说明地图位置，因此显示全世界。</translation>
    </message>
    <message>
        <source>It is the data&apos;s own; where on the globe they are is not known.</source>
        <translation>这是数据自身的坐标系；数据在地球上的位置未知。</translation>
    </message>
    <message>
        <source>It is the data&apos;s own, since they do not lie on the Earth.</source>
        <translation>使用数据自身的坐标系，因为数据不在地球上。</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Nothing to set</source>
        <translation>没有可设置的内容</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 个元素</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>图层 %1</translation>
    </message>
    <message>
        <source>Map %1</source>
        <translation>地图 %1</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>%1 rows of the contents</source>
        <translation>内容列表的 %1 行</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>组 %1</translation>
    </message>
</context>
<context>
    <name>RasterLayer</name>
    <message>
        <source>The raster “%1” can&apos;t be taken into the map&apos;s coordinate system: %2.</source>
        <translation>无法将栅格“%1”转换到地图的坐标系:%2。</translation>
    </message>
    <message>
        <source>The raster “%1” has %2 bands and no band %3; choose another band.</source>
        <translation>栅格“%1”有 %2 个波段,没有波段 %3;请选择其他波段。</translation>
    </message>
    <message>
        <source>The raster “%1” can&apos;t be read to its end: %2.</source>
        <translation>无法读完栅格“%1”:%2。</translation>
    </message>
</context>
<context>
    <name>RasterRenderer</name>
    <message>
        <source>The classes stand in for it, so that it does not count.</source>
        <translation>由各类代替，因此它不起作用。</translation>
    </message>
</context>
<context>
    <name>RasterSource</name>
    <message>
        <source>The raster “%1” can&apos;t be opened: %2.</source>
        <translation>无法打开栅格“%1”:%2。</translation>
    </message>
    <message>
        <source>it does not exist; put it there, or name another file in the layer&apos;s source</source>
        <translation>文件不存在;请放到该处,或在图层的数据源中指定其他文件</translation>
    </message>
    <message>
        <source>it is not a file; name one in the layer&apos;s source</source>
        <translation>不是文件;请在图层的数据源中指定一个文件</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>it only refers to other files; make one file of it, as by gdal_translate</source>
        <translation>它只引用其他文件;请将其做成一个文件,例如用 gdal_translate</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>缺少一部分</translation>
    </message>
    <message>
        <source>its format is none of those that are known (%1)</source>
        <translation>其格式不在已知格式之列(%1)</translation>
    </message>
    <message>
        <source>it holds several rasters; name one of them: %1</source>
        <translation type="vanished">其中有多个栅格;请指定其一:%1</translation>
    </message>
    <message>
        <source>it holds no pixels</source>
        <translation>其中没有像素</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels in %3 bands; no more than %4 a side in %5 bands are drawn</source>
        <translation>有 %1 × %2 个像素,%3 个波段;最多绘制每边 %4 个像素、%5 个波段</translation>
    </message>
    <message>
        <source>it does not say where it lies; give it coordinates, as by a world file beside it</source>
        <translation>未说明其位置;请为其提供坐标,例如在旁边放一个坐标文件</translation>
    </message>
    <message>
        <source>its coordinates make no sense; give it others, as by gdal_edit</source>
        <translation>其坐标没有意义;请更换坐标,例如用 gdal_edit</translation>
    </message>
    <message>
        <source>its coordinate system names a file by its path, which is not opened; give another one in the source&apos;s field “coordinateSystem”</source>
        <translation>其坐标系按路径指定了一个文件,该文件不会被打开;请在数据源的“coordinateSystem”字段中指定其他坐标系</translation>
    </message>
    <message>
        <source>it is stored in pieces of %1 MB; save it in tiles, as by gdal_translate -co TILED=YES</source>
        <translation>以每块 %1 MB 存储;请以瓦片方式保存,例如用 gdal_translate -co TILED=YES</translation>
    </message>
    <message>
        <source>it is not whole, or damaged; fetch it again</source>
        <translation>它不完整或已损坏；请重新获取</translation>
    </message>
    <message>
        <source>it names another file for its overviews, which is not opened; save it without that entry</source>
        <translation>它为其概览指定了另一个文件，该文件不会被打开；请去掉该条目后另存</translation>
    </message>
</context>
<context>
    <name>RasterStyling</name>
    <message>
        <source>taken for heights, which are tinted</source>
        <translation>视为高程,分层设色</translation>
    </message>
    <message>
        <source>light from the upper left over the heights</source>
        <translation>光从左上方照在高程上</translation>
    </message>
    <message>
        <source>in the colours of its bands</source>
        <translation>按其波段的颜色</translation>
    </message>
    <message>
        <source>in the colours of its palette</source>
        <translation>按其调色板的颜色</translation>
    </message>
    <message>
        <source>holds no values, so nothing is drawn</source>
        <translation>不含任何数值，因此不绘制任何内容</translation>
    </message>
</context>
<context>
    <name>RecoveryCopy</name>
    <message>
        <source>What is not saved would be lost in a crash, since no copy of it can be kept. %1</source>
        <translation>由于无法保留副本，未保存的内容在程序崩溃时会丢失。%1</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover Documents</source>
        <translation>恢复文档</translation>
    </message>
    <message>
        <source>Plotvane ended with changes that were not saved. A recovered document is as it was then, and counts as not saved; its file stays as it is until you save.</source>
        <translation type="vanished">Plotvane 结束时有未保存的更改。恢复的文档保持当时的状态，视为未保存；在您保存之前，其文件不变。</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>Keep for Later</source>
        <translation>留待以后</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>从未保存</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>%1
The copy is kept in %2.</source>
        <translation>%1
副本保留在 %2。</translation>
    </message>
    <message>
        <source>Discard the changes of %1?</source>
        <translation>丢弃 %1 的更改？</translation>
    </message>
    <message>
        <source>Plotvane ended before these changes were saved. Recover opens the document with them; its file stays as it is until you save.</source>
        <translation>Plotvane 在这些更改保存之前结束了。“恢复”会打开包含这些更改的文档；在您保存之前，文件保持原样。</translation>
    </message>
    <message>
        <source>%1 was not opened, since a document was recovered. Save that, then open it.</source>
        <translation>由于恢复了一个文档，%1 没有打开。请先保存恢复的文档，再打开它。</translation>
    </message>
</context>
<context>
    <name>Renderer</name>
    <message>
        <source>“%1” is in two classes</source>
        <translation>“%1”同时属于两个类</translation>
    </message>
    <message>
        <source>is not above that of the class before</source>
        <translation>不大于前一类的值</translation>
    </message>
    <message>
        <source>names no field</source>
        <translation type="vanished">没有指定字段</translation>
    </message>
    <message>
        <source>is larger than maxScale</source>
        <translation>大于 maxScale</translation>
    </message>
</context>
<context>
    <name>Ruler</name>
    <message>
        <source>Centimetres on the page; pull a guide out of here</source>
        <translation>页面上的厘米；可从此处拖出参考线</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>run: this plug-in does not build %1; plotvane commands lists what it builds.</source>
        <translation>run: 此插件不提供 %1；plotvane commands 列出它提供的命令。</translation>
    </message>
    <message>
        <source>run: &quot;%1&quot; is neither a step nor a command&apos;s identifier; plotvane run --help lists the steps, and plotvane commands the commands.</source>
        <translation>run: “%1”既不是步骤也不是命令标识符；plotvane run --help 列出步骤，plotvane commands 列出命令。</translation>
    </message>
    <message>
        <source>run: &quot;%1&quot; is written %2=%3.</source>
        <translation>run: “%1”应写作 %2=%3。</translation>
    </message>
    <message>
        <source>run: %1: %2</source>
        <translation>run: %1: %2</translation>
    </message>
    <message>
        <source>run: %1.</source>
        <translation>run: %1。</translation>
    </message>
    <message>
        <source>%1 is disabled; it needs %2.</source>
        <translation>“%1”不可用；需要：%2。</translation>
    </message>
    <message>
        <source>there is no view whose elements could be selected.</source>
        <translation>没有可选择元素的视图。</translation>
    </message>
    <message>
        <source>no element is named &quot;%1&quot;; plotvane info lists names and handles, and #12 is the one with handle 12.</source>
        <translation>没有名为“%1”的元素；plotvane info 列出名称和句柄，#12 表示句柄为 12 的元素。</translation>
    </message>
    <message>
        <source>%1 needs the page layout shown.</source>
        <translation>“%1”需要显示页面布局。</translation>
    </message>
    <message>
        <source>%1 Name another file, or pass --force.</source>
        <translation>%1请指定其他文件，或加上 --force。</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was read; name another file, or pass --force.</source>
        <translation>读取之后，%1 已被其他程序更改；请指定其他文件，或加上 --force。</translation>
    </message>
    <message>
        <source>the page has no data frame, so there is no map to show.</source>
        <translation>页面没有数据框，因此没有可显示的地图。</translation>
    </message>
    <message>
        <source>the data frame is locked; Plotvane_UnlockDataFrame unlocks it.</source>
        <translation>数据框已锁定；Plotvane_UnlockDataFrame 可将其解锁。</translation>
    </message>
    <message>
        <source>a map can&apos;t show that.</source>
        <translation type="vanished">地图无法显示该范围。</translation>
    </message>
    <message>
        <source>the focus map has no layer &quot;%1&quot;; it has: %2.</source>
        <translation>活动数据框的地图没有图层“%1”；现有图层：%2。</translation>
    </message>
    <message>
        <source>no map is named &quot;%1&quot;; plotvane info lists maps and handles, and #12 is the map of the data frame with handle 12.</source>
        <translation>没有名为“%1”的地图；plotvane info 列出地图和句柄，#12 表示句柄为 12 的数据框中的地图。</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write page, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation type="vanished">没有“%1”；请写 page、selection、元素的名称或 #HANDLE、map:名称或 layer:地图/图层；plotvane info 会列出它们。</translation>
    </message>
    <message>
        <source>there is no such field; get=%1 prints all that there are.</source>
        <translation>没有这个字段；get=%1 会打印所有字段。</translation>
    </message>
    <message>
        <source>run: %1 belongs to the window; here save=FILE saves the document.</source>
        <translation>run：%1 属于窗口；在这里用 save=FILE 保存文档。</translation>
    </message>
    <message>
        <source>run: %1 belongs to the window; leave it out.</source>
        <translation>run：%1 属于窗口；请去掉它。</translation>
    </message>
    <message>
        <source>the map is shown, and holds nothing named &quot;%1&quot;; view=layout shows the page and its elements.</source>
        <translation>当前显示的是地图，其中没有名为“%1”的内容；view=layout 显示页面及其元素。</translation>
    </message>
    <message>
        <source>this rectangle has no area; its corners must differ in x and in y.</source>
        <translation type="vanished">此矩形没有面积；两个角的 x 和 y 都必须不同。</translation>
    </message>
    <message>
        <source>a map can&apos;t show that much or that little; give other numbers.</source>
        <translation>地图无法显示这么大或这么小的范围；请给出其他数值。</translation>
    </message>
    <message>
        <source>the page has no map with layers that could be shown or hidden.</source>
        <translation>页面上没有带图层的地图可供显示或隐藏。</translation>
    </message>
    <message>
        <source>this is the name of an image, and what is saved is the document; name a .kdx file, or make an image with Plotvane_Export.</source>
        <translation type="vanished">这是图像的名称，而保存的是文档；请指定 .kdx 文件，或用 Plotvane_Export 生成图像。</translation>
    </message>
    <message>
        <source>an element can only be added where the page layout is shown.</source>
        <translation>只有显示页面布局时才能添加元素。</translation>
    </message>
    <message>
        <source>nothing that can be turned is selected; texts, pictures, markers, lines, polygons and groups of these can.</source>
        <translation>没有选中可旋转的对象；文本、图片、点标记、线、多边形及其组合可以旋转。</translation>
    </message>
    <message>
        <source>there is no map at this place; on the page, it is given in centimetres.</source>
        <translation>此处没有地图；在页面上以厘米给出。</translation>
    </message>
    <message>
        <source>this rectangle has no area; its corners must differ in x and in y</source>
        <translation>该矩形没有面积；其两角的 x 和 y 都必须不同</translation>
    </message>
    <message>
        <source>run: %1: %2.</source>
        <translation>run：%1：%2。</translation>
    </message>
    <message>
        <source>this is the name of an image, and what is saved is the document; name a .kdx file, or make an image with Plotvane_Export</source>
        <translation>这是图像的名称，而保存的是文档；请指定 .kdx 文件，或用 Plotvane_Export 生成图像</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write document, page, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation type="vanished">没有“%1”；请写 document、page、selection、元素名称或 #HANDLE、map:NAME 或 layer:MAP/LAYER；plotvane info 会列出它们。</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write document, page, series, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation>没有“%1”；请写 document、page、series、selection、元素的名称或 #HANDLE、map:NAME 或 layer:MAP/LAYER；plotvane info 会列出它们。</translation>
    </message>
</context>
<context>
    <name>RunSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation>.kdx 文档。</translation>
    </message>
    <message>
        <source>What to do, in order: a command&apos;s identifier, or one of
%1</source>
        <translation>按顺序执行的步骤：命令标识符，或下列之一
%1</translation>
    </message>
    <message>
        <source>Save also over a document that somebody else has opened or changed.</source>
        <translation>即使文档已被他人打开或更改，也予以保存。</translation>
    </message>
</context>
<context>
    <name>SelectTool</name>
    <message>
        <source>Nudge the selected elements</source>
        <translation>微移所选元素</translation>
    </message>
    <message>
        <source>Nudge the vertex</source>
        <translation>微移顶点</translation>
    </message>
    <message>
        <source>Add a vertex</source>
        <translation>添加顶点</translation>
    </message>
    <message>
        <source>Delete the vertex</source>
        <translation>删除顶点</translation>
    </message>
</context>
<context>
    <name>SeriesDialog</name>
    <message>
        <source>Series of Pages</source>
        <translation>页面系列</translation>
    </message>
    <message>
        <source>A page for each feature</source>
        <translation>每个要素一页</translation>
    </message>
    <message>
        <source>%1 pages:</source>
        <translation>%1 页：</translation>
    </message>
    <message>
        <source>Name a layer, and each of its features has a page.</source>
        <translation>指定一个图层，其每个要素就有一页。</translation>
    </message>
    <message>
        <source>Set the features of the series</source>
        <translation>设置系列的要素</translation>
    </message>
    <message>
        <source>Data of the Series</source>
        <translation>系列的数据</translation>
    </message>
</context>
<context>
    <name>SeriesExport</name>
    <message>
        <source>export: --resume passes over files of single pages; give the path a placeholder such as “[page]”.</source>
        <translation>export：--resume 跳过单页文件；请在路径中使用如“[page]”的占位符。</translation>
    </message>
    <message>
        <source>%1 has a placeholder, which stands for something else on each page of a series, and the document has no series; name one file, or give the document a series.</source>
        <translation>%1 含有占位符，它在系列的每一页上代表不同内容，而文档没有系列；请指定一个文件，或给文档一个系列。</translation>
    </message>
    <message>
        <source>export: --pages, --part, --jobs and --resume are for a series of pages, and the document has none; leave them out.</source>
        <translation>export：--pages、--part、--jobs 和 --resume 用于页面系列，而文档没有系列；请去掉它们。</translation>
    </message>
    <message>
        <source>There is no such page; the series has %1 pages.</source>
        <translation>没有这样的页；系列有 %1 页。</translation>
    </message>
    <message>
        <source>export: --jobs draws pages into files of their own; give the path a placeholder such as “[page]”, or leave --jobs out for one file.</source>
        <translation>export：--jobs 将各页绘入各自的文件；请在路径中使用如“[page]”的占位符，或为单个文件去掉 --jobs。</translation>
    </message>
    <message>
        <source>%1 would be the file of %2 pages; give the path a placeholder such as “[page]” or “[field:name]”, or choose one page with --pages.</source>
        <translation>%1 将成为 %2 页的文件；请在路径中使用如“[page]”或“[field:name]”的占位符，或用 --pages 选择一页。</translation>
    </message>
    <message>
        <source>%1 pages were whole already and were passed over.</source>
        <translation>%1 页已经完整，已跳过。</translation>
    </message>
    <message>
        <source>Not all pages of %1 were written; the sentences before say which, and why.</source>
        <translation>%1 的页面未全部写出；前面的句子说明了是哪些以及原因。</translation>
    </message>
    <message>
        <source>Page %1 of %2 %3</source>
        <translation>第 %1 页，共 %2 页 %3</translation>
    </message>
    <message>
        <source>Not all pages were written: interrupted.</source>
        <translation>页面未全部写出：已中断。</translation>
    </message>
    <message>
        <source>%1 of %2 pages were not written: %3.</source>
        <translation>%2 页中有 %1 页没有写出：%3。</translation>
    </message>
</context>
<context>
    <name>SeriesOptions</name>
    <message>
        <source>Of a series, these pages: &quot;1-20,45&quot;, &quot;odd&quot;, &quot;last&quot;.</source>
        <translation>系列中的这些页：&quot;1-20,45&quot;、&quot;odd&quot;、&quot;last&quot;。</translation>
    </message>
    <message>
        <source>Of the pages, every Nth from the Kth on: each page is in one of the N parts.</source>
        <translation>从第 K 页起每隔 N 页取一页：每页都在 N 个部分中的一个。</translation>
    </message>
    <message>
        <source>Draw pages in N processes at once.</source>
        <translation>同时用 N 个进程绘制页面。</translation>
    </message>
    <message>
        <source>Pass over pages whose files are whole and newer than the document and its data.</source>
        <translation>跳过文件完整且比文档及其数据更新的页面。</translation>
    </message>
    <message>
        <source>export: --pages takes numbers and ranges such as 1-20,45, or first, last, odd, even, not &quot;%1&quot;.</source>
        <translation>export：--pages 接受如 1-20,45 的页码和范围，或 first、last、odd、even，而不是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>export: --part takes K/N with K from 1 to N, as in 3/10, not &quot;%1&quot;.</source>
        <translation>export：--part 接受 K/N，K 为 1 到 N，如 3/10，而不是 &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>export: --jobs takes a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>export：--jobs 接受 1 到 %1 的整数，而不是 &quot;%2&quot;。</translation>
    </message>
</context>
<context>
    <name>SeriesPages</name>
    <message>
        <source>There is no document whose pages could be shown.</source>
        <translation>没有可以显示页面的文档。</translation>
    </message>
    <message>
        <source>The element “%1” stands on all pages: %2</source>
        <translation>元素“%1”出现在所有页上：%2</translation>
    </message>
    <message>
        <source>Page %1 “%2”: its feature has no place that the map could show; leave it out by “series/filter”, or mend its geometry.</source>
        <translation>第 %1 页“%2”：其要素没有地图能显示的位置；请用“series/filter”去掉它，或修正其几何。</translation>
    </message>
</context>
<context>
    <name>SeriesRun</name>
    <message>
        <source>Page %1 of %2: %3</source>
        <translation>第 %1 页，共 %2 页：%3</translation>
    </message>
</context>
<context>
    <name>SeriesSettings</name>
    <message>
        <source>is missing; name the layer, or a “source”, whose features are to have a page each</source>
        <translation>缺失；请指定其要素各有一页的图层或“source”</translation>
    </message>
</context>
<context>
    <name>SeriesView</name>
    <message>
        <source>The document has no series of pages.</source>
        <translation>文档没有页面系列。</translation>
    </message>
    <message>
        <source>There is no page %1; the series has %2 pages.</source>
        <translation>没有第 %1 页；系列有 %2 页。</translation>
    </message>
    <message>
        <source>No page has the number or the name “%1”; there are %2, from “%3” to “%4”.</source>
        <translation>没有页码或名称为“%1”的页；共有 %2 页，从“%3”到“%4”。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no display for the window. To make an image of a page without one: plotvane export DOCUMENT IMAGE; plotvane --help tells what else works.</source>
        <translation>没有可供窗口使用的显示。无需显示即可生成页面图像：plotvane export DOCUMENT IMAGE；plotvane --help 列出其他可用功能。</translation>
    </message>
</context>
<context>
    <name>SourceBounds</name>
    <message>
        <source>it gives longer values than a file of its size can hold</source>
        <translation>它给出的值比这样大小的文件所能容纳的更长</translation>
    </message>
    <message>
        <source>it gives more features than a file of its size can hold</source>
        <translation>它给出的要素比这样大小的文件所能容纳的更多</translation>
    </message>
    <message>
        <source>it gives more than 5 million features or 2 GB; let the layer show a view of it that has fewer</source>
        <translation>它给出超过 500 万个要素或 2 GB;请让图层显示要素较少的视图</translation>
    </message>
</context>
<context>
    <name>SourceIndexes</name>
    <message>
        <source>it would take more than a tenth of the room that is free there</source>
        <translation>它将占用那里可用空间的十分之一以上</translation>
    </message>
    <message>
        <source>it could not be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>nothing can be written there</source>
        <translation>无法在那里写入</translation>
    </message>
</context>
<context>
    <name>SourceSystem</name>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates, which can&apos;t be degrees, are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>%1 所指的坐标系未知（%2）；其坐标不可能是度，因此按地图的坐标处理。请在数据源的字段“coordinateSystem”中给出坐标系。</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>%1 所指的坐标系未知（%2）；其坐标按经度和纬度处理。请在数据源的字段“coordinateSystem”中给出坐标系。</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be degrees, as those of its coordinate system are (GeoJSON that names none is in degrees); they are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>%1 的坐标不可能是度，而其坐标系的坐标应当是度（未指定坐标系的 GeoJSON 以度为单位）；现按地图的坐标处理。请在数据源的“coordinateSystem”字段中指定坐标系。</translation>
    </message>
    <message>
        <source>The coordinates of %1 look like degrees, and its coordinate system counts in metres. If they are, give the system in the source&apos;s field “coordinateSystem”, such as EPSG:4326.</source>
        <translation>%1 的坐标看起来像度，而其坐标系以米为单位。如果确实是度，请在数据源的字段“coordinateSystem”中给出坐标系，例如 EPSG:4326。</translation>
    </message>
    <message>
        <source>No coordinate system is known for %1; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation>%1的坐标系未知，其坐标按地图坐标处理。请在数据源的“coordinateSystem”字段中给出坐标系。</translation>
    </message>
</context>
<context>
    <name>StoredFormat</name>
    <message>
        <source>document for .kdx files, which is meant without it, or style for .style files.</source>
        <translation>document 表示 .kdx 文件（省略时即为此），style 表示 .style 文件。</translation>
    </message>
    <message>
        <source>the format is document or style, not &quot;%1&quot;.</source>
        <translation>格式应为 document 或 style，而不是“%1”。</translation>
    </message>
</context>
<context>
    <name>StyleLibrary</name>
    <message>
        <source>style library</source>
        <translation>样式库</translation>
    </message>
    <message>
        <source>is not “%1”, so this is no style library</source>
        <translation>不是“%1”，因此这不是样式库</translation>
    </message>
    <message>
        <source>the library was written by a newer version of Plotvane, as version %1; update Plotvane</source>
        <translation>样式库由较新版本的 Plotvane 写成，版本为 %1；请更新 Plotvane</translation>
    </message>
    <message>
        <source>is empty; give it a name</source>
        <translation type="vanished">为空；请给出名称</translation>
    </message>
    <message>
        <source>; correct the file or choose another one</source>
        <translation>；请修正文件或选择其他文件</translation>
    </message>
    <message>
        <source>; change this value, then save again</source>
        <translation>；请更改此值后重新保存</translation>
    </message>
</context>
<context>
    <name>Subcommand</name>
    <message>
        <source>Draw the page of a document into an image file</source>
        <translation>将文档的页面绘制到图像文件</translation>
    </message>
    <message>
        <source>Tell what is on the page of a document</source>
        <translation type="vanished">列出文档页面上的内容</translation>
    </message>
    <message>
        <source>Work on a document step by step, without a window</source>
        <translation>无需窗口，逐步处理文档</translation>
    </message>
    <message>
        <source>List the commands and whether the plug-in builds them</source>
        <translation>列出命令以及插件是否提供这些命令</translation>
    </message>
    <message>
        <source>Usage: plotvane [DOCUMENT]              opens the window
       plotvane SUBCOMMAND [options]   works without one</source>
        <translation>用法：plotvane [DOCUMENT]              打开窗口
      plotvane SUBCOMMAND [options]   无需窗口运行</translation>
    </message>
    <message>
        <source>
plotvane SUBCOMMAND --help tells about one of them; plotvane --version tells the version. --language LANG, on any of these lines, names the language of the texts, such as de; it is the user&apos;s own otherwise.</source>
        <translation>
plotvane SUBCOMMAND --help 说明其中一个子命令；plotvane --version 给出版本。以上各行均可用 --language LANG 指定文字的语言，例如 de；否则使用用户自己的语言。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a subcommand nor a document; plotvane --help lists the subcommands.</source>
        <translation>“%1”既不是子命令也不是文档；plotvane --help 列出子命令。</translation>
    </message>
    <message>
        <source>The result could not be written to standard output.</source>
        <translation>无法将结果写入标准输出。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>The language of the texts, such as de; the user&apos;s own if not given.</source>
        <translation>文字的语言，例如 de；不给出时使用用户自己的语言。</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>缺少 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many.</source>
        <translation>“%1”是多余的参数。</translation>
    </message>
    <message>
        <source>plotvane %1 --help tells how.</source>
        <translation>用法见 plotvane %1 --help。</translation>
    </message>
    <message>
        <source>Usage: plotvane %1 [options] %2</source>
        <translation>用法：plotvane %1 [options] %2</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: there is no such document; check the name and the folder.</source>
        <translation>%1：没有此文档；请检查名称和文件夹。</translation>
    </message>
    <message>
        <source>Print the format of documents or styles as a JSON Schema</source>
        <translation>以 JSON Schema 输出文档或样式的格式</translation>
    </message>
    <message>
        <source>Print tables of all fields of documents or styles</source>
        <translation>输出文档或样式的全部字段表</translation>
    </message>
    <message>
        <source>Tell what is on the page of a document, or in a file of data</source>
        <translation>说明文档页面上或数据文件中有什么</translation>
    </message>
    <message>
        <source>Search for coordinate systems by name, code or area</source>
        <translation>按名称、代码或区域搜索坐标系</translation>
    </message>
    <message>
        <source>Make a map of data, with a page around it</source>
        <translation>用数据制作地图及其页面</translation>
    </message>
    <message>
        <source>Open for the document only files in its folder, below it, and in folders that --allow names.</source>
        <translation>只为文档打开其所在文件夹、其子文件夹以及 --allow 指定的文件夹中的文件。</translation>
    </message>
    <message>
        <source>A folder for --confine; may be given several times.</source>
        <translation>用于 --confine 的文件夹；可多次指定。</translation>
    </message>
    <message>
        <source>End it, cleaned up, after so many seconds.</source>
        <translation>在这么多秒后结束并清理。</translation>
    </message>
    <message>
        <source>End it where it takes more than so many megabytes.</source>
        <translation>占用超过这么多兆字节时结束。</translation>
    </message>
    <message>
        <source>List, add, remove or test connections to PostGIS databases</source>
        <translation>列出、添加、移除或测试 PostGIS 数据库连接</translation>
    </message>
    <message>
        <source>A connection for --confine, by its name; may be given several times.</source>
        <translation>用于 --confine 的连接名称;可多次给出。</translation>
    </message>
    <message>
        <source>Make and use no indexes of large files in the user&apos;s cache.</source>
        <translation>不在用户缓存中建立或使用大文件的索引。</translation>
    </message>
</context>
<context>
    <name>SurroundFields</name>
    <message>
        <source>is no map of the document</source>
        <translation>不是该文档中的地图</translation>
    </message>
    <message>
        <source>a grid of a kind that can&apos;t be stored</source>
        <translation>无法存储的格网类型</translation>
    </message>
    <message>
        <source>the element “%1” is not drawn: %2</source>
        <translation>元素“%1”未绘制：%2</translation>
    </message>
</context>
<context>
    <name>SvgCheck</name>
    <message>
        <source>the SVG is not well-formed: %1 in line %2</source>
        <translation>SVG 格式不正确：第 %2 行，%1</translation>
    </message>
    <message>
        <source>the SVG is empty</source>
        <translation>SVG 为空</translation>
    </message>
    <message>
        <source>the SVG declares a document type or entities; remove them</source>
        <translation>SVG 声明了文档类型或实体；请去掉</translation>
    </message>
    <message>
        <source>the SVG holds a processing instruction; remove it</source>
        <translation>SVG 含有处理指令；请去掉</translation>
    </message>
    <message>
        <source>the file is not an SVG</source>
        <translation>文件不是 SVG</translation>
    </message>
    <message>
        <source>the SVG has more than %1 elements</source>
        <translation>SVG 的元素超过 %1 个</translation>
    </message>
    <message>
        <source>the SVG&apos;s elements are nested more than %1 deep</source>
        <translation>SVG 元素的嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the SVG holds a script; remove it</source>
        <translation>SVG 含有脚本；请去掉</translation>
    </message>
    <message>
        <source>the SVG refers to “%1”; put what it needs into the file</source>
        <translation>SVG 引用了“%1”；请将所需内容放入文件</translation>
    </message>
    <message>
        <source>the SVG embeds an image that is neither PNG nor JPEG</source>
        <translation>SVG 嵌入的图像既不是 PNG 也不是 JPEG</translation>
    </message>
    <message>
        <source>the SVG embeds an image larger than %1 × %1 pixels</source>
        <translation>SVG 嵌入的图像大于 %1 × %1 像素</translation>
    </message>
    <message>
        <source>the SVG&apos;s style sheet imports another or hides characters; put what it needs into the file</source>
        <translation>SVG 的样式表导入了其他样式表或隐藏了字符；请将所需内容放入文件</translation>
    </message>
    <message>
        <source>the SVG repeats its parts in a circle or more than %1 times</source>
        <translation>SVG 循环引用自身的部分，或重复超过 %1 次</translation>
    </message>
    <message>
        <source>the SVG has more than %1 bytes</source>
        <translation>SVG 超过 %1 字节</translation>
    </message>
    <message>
        <source>the SVG&apos;s dashes and their offset differ by more than 1 to 1,000,000,000; change stroke-dasharray or stroke-dashoffset</source>
        <translation>SVG 的虚线长度与其偏移相差超过 1 比 1,000,000,000；请更改 stroke-dasharray 或 stroke-dashoffset</translation>
    </message>
</context>
<context>
    <name>SvgMarkerSymbol</name>
    <message>
        <source>the SVG can&apos;t be drawn: it has no size or no content</source>
        <translation type="vanished">无法绘制 SVG：它没有尺寸或没有内容</translation>
    </message>
</context>
<context>
    <name>SvgPicture</name>
    <message>
        <source>the SVG can&apos;t be drawn: it has no size or no content</source>
        <translation>无法绘制该 SVG：它没有尺寸或没有内容</translation>
    </message>
</context>
<context>
    <name>SymbolArchive</name>
    <message>
        <source>a symbol of a kind that can&apos;t be stored</source>
        <translation type="vanished">无法存储的符号类型</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">“%1”不在可用值之中：%2</translation>
    </message>
    <message>
        <source>there is no symbol to store</source>
        <translation type="vanished">没有可存储的符号</translation>
    </message>
    <message>
        <source>“%1” is not a colour like #rrggbb or #aarrggbb</source>
        <translation type="vanished">“%1”不是 #rrggbb 或 #aarrggbb 形式的颜色</translation>
    </message>
</context>
<context>
    <name>SymbolFields</name>
    <message>
        <source>there is no symbol to store</source>
        <translation>没有可存储的符号</translation>
    </message>
    <message>
        <source>a symbol of a kind that can&apos;t be stored</source>
        <translation>无法存储的符号类型</translation>
    </message>
    <message>
        <source>“%1” is not a colour like #rrggbb or #aarrggbb</source>
        <translation>“%1”不是 #rrggbb 或 #aarrggbb 形式的颜色</translation>
    </message>
    <message>
        <source>is smaller than that of the colour before; sort them</source>
        <translation>小于前一颜色的位置；请按顺序排列</translation>
    </message>
    <message>
        <source>layers lie within layers more than %1 deep; put them into one list</source>
        <translation>图层嵌套超过 %1 层；请放入一个列表</translation>
    </message>
</context>
<context>
    <name>SymbolSettings</name>
    <message>
        <source>“%1” is no feature of OpenType; write a tag such as smcp, or liga=0</source>
        <translation>“%1”不是 OpenType 特性；请写标记，如 smcp 或 liga=0</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ColorButton</name>
    <message>
        <source>Choose Colour</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ContentsModel</name>
    <message>
        <source>Shown at every scale</source>
        <translation>在所有比例尺下显示</translation>
    </message>
    <message>
        <source>Shown at scales larger than %1</source>
        <translation>在大于 %1 的比例尺下显示</translation>
    </message>
    <message>
        <source>Shown at scales smaller than %1</source>
        <translation>在小于 %1 的比例尺下显示</translation>
    </message>
    <message>
        <source>Shown between %1 and %2</source>
        <translation>在 %1 与 %2 之间显示</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>No maps on this page</source>
        <translation>此页面上没有地图</translation>
    </message>
    <message>
        <source>Click to work on this map</source>
        <translation>单击以处理此地图</translation>
    </message>
    <message>
        <source>%1; the map is at %2</source>
        <translation>%1；地图为 %2</translation>
    </message>
    <message>
        <source>A group hides it</source>
        <translation>被组隐藏</translation>
    </message>
    <message>
        <source>map with the focus</source>
        <translation>焦点地图</translation>
    </message>
    <message>
        <source>map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>%1 of %2 labels found no place</source>
        <translation>%2 个标注中有 %1 个没有位置</translation>
    </message>
    <message>
        <source>%1 of it were read</source>
        <translation>已读取 %1</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ContentsTree</name>
    <message>
        <source>Maps and layers</source>
        <translation>地图和图层</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::EntryModel</name>
    <message>
        <source>Features</source>
        <translation>要素</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::EntryTable</name>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation>更改(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>复制(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::FieldEditor</name>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 个字符</translation>
    </message>
    <message>
        <source>Pictures (*.svg)</source>
        <translation>图片 (*.svg)</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>Choose Colour</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Choose a coordinate system</source>
        <translation>选择坐标系</translation>
    </message>
    <message>
        <source>Write it with the fields at hand</source>
        <translation>借助字段列表编写</translation>
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
        <source>Colour:</source>
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
        <source>Plain colour</source>
        <translation>纯色</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::PropertyModel</name>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Upper middle</source>
        <translation>中上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>右中</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Lower middle</source>
        <translation>中下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>To the right.</source>
        <translation>向右。</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Upwards.</source>
        <translation>向上。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>From the left side to the right one.</source>
        <translation>从左边到右边。</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>From the lower side to the upper one.</source>
        <translation>从下边到上边。</translation>
    </message>
    <message>
        <source>Measured from</source>
        <translation>测量基准</translation>
    </message>
    <message>
        <source>The place of the rectangle that X and Y tell of, and that stays where it is when the size changes.</source>
        <translation>X 和 Y 所指的矩形位置；改变大小时该位置保持不动。</translation>
    </message>
    <message>
        <source>line widths</source>
        <translation type="vanished">线宽</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation type="vanished">%1 个字符</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation type="vanished">%1 个点</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation type="vanished">%1 项</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>第 %1 项</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::PropertySheet</name>
    <message>
        <source>Add an entry to the list</source>
        <translation>向列表添加一项</translation>
    </message>
    <message>
        <source>Remove this entry from the list</source>
        <translation>从列表中删除此项</translation>
    </message>
    <message>
        <source>Move this entry up</source>
        <translation>将此项上移</translation>
    </message>
    <message>
        <source>Move this entry down</source>
        <translation>将此项下移</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>搜索属性</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::StyleBrowser</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search for a symbol</source>
        <translation>搜索符号</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation>当前符号</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>The style libraries hold nothing of this kind.</source>
        <translation>样式库中没有这一类符号。</translation>
    </message>
    <message>
        <source>No name matches.</source>
        <translation>没有匹配的名称。</translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>未选择。</translation>
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
        <translation>样式</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="vanished">搜索</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation type="vanished">当前符号</translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation type="vanished">未选择任何样式。</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SymbolChooser</name>
    <message>
        <source>The symbol at its size on paper</source>
        <translation>符号在纸上的大小</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Save to Library…</source>
        <translation>保存到符号库…</translation>
    </message>
    <message>
        <source>Save to Library</source>
        <translation>保存到符号库</translation>
    </message>
    <message>
        <source>The name under which the symbol is found:</source>
        <translation>查找该符号时使用的名称：</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SystemChooser</name>
    <message>
        <source>the present one</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>in the document</source>
        <translation>文档中</translation>
    </message>
    <message>
        <source>chosen lately</source>
        <translation>最近选择</translation>
    </message>
    <message>
        <source>geographic</source>
        <translation>地理</translation>
    </message>
    <message>
        <source>projected</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>基准</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>编写</translation>
    </message>
    <message>
        <source>Name, code or area, as in “utm 33” or “germany”</source>
        <translation>名称、代码或区域，如“utm 33”或“germany”</translation>
    </message>
    <message>
        <source>Search for a coordinate system</source>
        <translation>搜索坐标系</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>所有类型</translation>
    </message>
    <message>
        <source>Projected</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>Geographic</source>
        <translation>地理</translation>
    </message>
    <message>
        <source>Deprecated, too</source>
        <translation>包括已弃用的</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>定义</translation>
    </message>
    <message>
        <source>A PROJ text, WKT or a code:</source>
        <translation>PROJ 文本、WKT 或代码：</translation>
    </message>
    <message>
        <source>Definition as WKT</source>
        <translation>WKT 定义</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>找到 %1 个</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>This %1.</source>
        <translation>此定义%1。</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SystemModel</name>
    <message>
        <source>as it is written</source>
        <translation>按所写</translation>
    </message>
    <message>
        <source>holds the map</source>
        <translation>包含地图</translation>
    </message>
    <message>
        <source>%1, holds the map</source>
        <translation>%1，包含地图</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::TOCControl</name>
    <message>
        <source>No maps on this page</source>
        <translation type="vanished">此页面上没有地图</translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="vanished">其他</translation>
    </message>
    <message>
        <source>Click to work on this map</source>
        <translation type="vanished">单击以处理此地图</translation>
    </message>
    <message>
        <source>%1 of %2 labels found no place</source>
        <translation type="vanished">%2 个标注中有 %1 个没有位置</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::WorldMap</name>
    <message>
        <source>The world, with the area of use and the map&apos;s extent</source>
        <translation>世界，带使用区域和地图范围</translation>
    </message>
    <message>
        <source>Blue: where the coordinate system is meant to be used. Orange: what the map shows.</source>
        <translation>蓝色：坐标系的适用区域。橙色：地图显示的范围。</translation>
    </message>
</context>
<context>
    <name>SystemsSubcommand</name>
    <message>
        <source>Words of the name, the code or the area, in any order.</source>
        <translation>名称、代码或区域中的词，顺序任意。</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>输出 JSON,供程序使用。</translation>
    </message>
    <message>
        <source>Deprecated systems, too.</source>
        <translation>包括已弃用的坐标系。</translation>
    </message>
    <message>
        <source>systems: no coordinate system has all of &quot;%1&quot;; leave a word out.</source>
        <translation>systems：没有坐标系包含“%1”的所有词；请去掉一个词。</translation>
    </message>
</context>
<context>
    <name>TestBar</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stopped before all features were read.</source>
        <translation>在读完所有要素之前已停止。</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Delete the text</source>
        <translation>删除文本</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text on the page</source>
        <translation>页面上的文本</translation>
    </message>
    <message>
        <source>With what was pasted the text has %1 characters, and an element at most %2; paste a part of it.</source>
        <translation>加上粘贴的内容，文本有 %1 个字符，而一个元素最多 %2 个；请只粘贴其中一部分。</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>No data are named; give a file of data.</source>
        <translation>未指定数据；请给出数据文件。</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation>无法采用该坐标系：%1。</translation>
    </message>
    <message>
        <source>“%1” is no paper; take one of: %2.</source>
        <translation>“%1”不是纸张；请选用：%2。</translation>
    </message>
</context>
<context>
    <name>TurnGesture</name>
    <message>
        <source>Turn the selected elements</source>
        <translation>旋转选中的元素</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>VectorExport</name>
    <message>
        <source>no page of the series can be shown</source>
        <translation>系列中没有可以显示的页面</translation>
    </message>
</context>
<context>
    <name>VertexHandles</name>
    <message>
        <source>x %1  y %2 cm</source>
        <translation>x %1  y %2 厘米</translation>
    </message>
    <message>
        <source>Add a vertex</source>
        <translation>添加顶点</translation>
    </message>
    <message>
        <source>Move the vertex</source>
        <translation>移动顶点</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>there is not enough memory for it; take less DPI or fewer layers, or give it more.</source>
        <translation>内存不足；请降低 DPI、减少图层，或增加内存。</translation>
    </message>
    <message>
        <source>%1 was not written: </source>
        <translation>%1 未写出：</translation>
    </message>
    <message>
        <source>it took more than the %1 s of --max-seconds.</source>
        <translation>用时超过 --max-seconds 的 %1 秒。</translation>
    </message>
    <message>
        <source>it took more than the %1 MB of --max-memory.</source>
        <translation>占用内存超过 --max-memory 的 %1 MB。</translation>
    </message>
    <message>
        <source>the program ended by a fault of its own (signal %1). Please report it.</source>
        <translation>程序因自身错误而结束（信号 %1）。请报告此问题。</translation>
    </message>
    <message>
        <source>interrupted.</source>
        <translation>已中断。</translation>
    </message>
    <message>
        <source>there is no memory left to go on; what was not saved is offered at the next start.</source>
        <translation>没有剩余内存，无法继续；未保存的内容将在下次启动时提供恢复。</translation>
    </message>
</context>
</TS>
