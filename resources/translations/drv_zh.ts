<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AddPlotterDialog</name>
    <message>
        <source>Add Graph</source>
        <translation>添加曲线图</translation>
    </message>
    <message>
        <source>Graph name: </source>
        <translation>曲线图名称：</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>Add to the plot</source>
        <translation>添加到曲线图</translation>
    </message>
    <message>
        <source>Remove from the plot</source>
        <translation>从曲线图中移除</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Channels of the plot</source>
        <translation>曲线图的通道</translation>
    </message>
</context>
<context>
    <name>CTVTDialog</name>
    <message>
        <source>Rescale CTVT</source>
        <translation>电流互感器和电压互感器变比</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>一次侧</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>二次侧</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Multiplies the values of the recorded side by its rating, even where nothing was changed</source>
        <translation>将记录侧的值乘以其额定值，即使未作任何更改</translation>
    </message>
    <message>
        <source>%1, primary</source>
        <translation>%1，一次侧</translation>
    </message>
    <message>
        <source>%1, secondary</source>
        <translation>%1，二次侧</translation>
    </message>
</context>
<context>
    <name>EventTable</name>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>时间 (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>时刻</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>距触发 (ms)</translation>
    </message>
    <message>
        <source>From Row Before (ms)</source>
        <translation>距上一行 (ms)</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>EventsDialog</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>筛选(&amp;F)：</translation>
    </message>
    <message>
        <source>Show only channels whose names contain this text</source>
        <translation>仅显示名称中含有此文本的通道</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>通道(&amp;H)：</translation>
    </message>
    <message>
        <source>A click shows the time in the plots, a double-click sets a cursor there</source>
        <translation>单击在图中显示该时刻，双击在该时刻放置游标</translation>
    </message>
    <message>
        <source>Copy all rows that pass the filter, with tabs between the columns</source>
        <translation>复制筛选出的所有行，列间以制表符分隔</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>复制表格(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>所有通道</translation>
    </message>
</context>
<context>
    <name>LoadingProgress</name>
    <message>
        <source>Reading: %p%</source>
        <translation>正在读取：%p%</translation>
    </message>
    <message>
        <source>Phasors: %p%</source>
        <translation>相量：%p%</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>剩余约 %1 秒</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>剩余约 %1 分钟</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>加载进度</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>停止加载</translation>
    </message>
    <message>
        <source>Stop loading (Esc)</source>
        <translation>停止加载 (Esc)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Device Information</source>
        <translation>装置信息</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>厂站：</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>起始日期：</translation>
    </message>
    <message>
        <source>Start Time:</source>
        <translation>起始时间：</translation>
    </message>
    <message>
        <source>Convert To Localtime</source>
        <translation>转换为本地时间</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>装置：</translation>
    </message>
    <message>
        <source>Trigger Date:</source>
        <translation>触发日期：</translation>
    </message>
    <message>
        <source>Trigger Time:</source>
        <translation>触发时间：</translation>
    </message>
    <message>
        <source>Analog Channels:</source>
        <translation>模拟量通道：</translation>
    </message>
    <message>
        <source>Digital Channels:</source>
        <translation>开关量通道：</translation>
    </message>
    <message>
        <source>Created by </source>
        <translation>开发者：</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open an existing file.</source>
        <translation>打开已有的故障录波文件。</translation>
    </message>
    <message>
        <source>&amp;Save As..</source>
        <translation>另存为(&amp;S)..</translation>
    </message>
    <message>
        <source>Save recording to file.</source>
        <translation>将故障录波保存到文件。</translation>
    </message>
    <message>
        <source>Save As &amp;Primary</source>
        <translation>另存为一次值(&amp;P)</translation>
    </message>
    <message>
        <source>Save as a primary type.</source>
        <translation>以一次值保存故障录波。</translation>
    </message>
    <message>
        <source>&amp;Add Plotter</source>
        <translation>添加曲线图(&amp;A)</translation>
    </message>
    <message>
        <source>Add analog plotter.</source>
        <translation>添加模拟量曲线图。</translation>
    </message>
    <message>
        <source>&amp;Remove Plotter</source>
        <translation>删除曲线图(&amp;R)</translation>
    </message>
    <message>
        <source>Remoe analog plotter.</source>
        <translation>删除模拟量曲线图。</translation>
    </message>
    <message>
        <source>&amp;Remove All Cursors</source>
        <translation>删除所有游标(&amp;C)</translation>
    </message>
    <message>
        <source>Remove all cursors.</source>
        <translation>删除所有游标。</translation>
    </message>
    <message>
        <source>&amp;Show Vectors</source>
        <translation>显示相量图(&amp;S)</translation>
    </message>
    <message>
        <source>Show vectors dialog.</source>
        <translation>显示相量图窗口。</translation>
    </message>
    <message>
        <source>Rescale CTVT</source>
        <translation>修改互感器变比</translation>
    </message>
    <message>
        <source>Set CTVT ratios.</source>
        <translation>设置电流互感器和电压互感器变比。</translation>
    </message>
    <message>
        <source>&amp;Save screenshot</source>
        <translation>保存截图(&amp;S)</translation>
    </message>
    <message>
        <source>Save screenshot.</source>
        <translation>保存截图。</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>复制到剪贴板(&amp;C)</translation>
    </message>
    <message>
        <source>Copy to clipboard.</source>
        <translation>复制到剪贴板。</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom in.</source>
        <translation>放大。</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom out.</source>
        <translation>缩小。</translation>
    </message>
    <message>
        <source>Zoom Reset</source>
        <translation>重置缩放</translation>
    </message>
    <message>
        <source>Zoom reset.</source>
        <translation>重置缩放。</translation>
    </message>
    <message>
        <source>Vertical Zoom In</source>
        <translation>垂直放大</translation>
    </message>
    <message>
        <source>Vertical zoom in.</source>
        <translation>垂直放大。</translation>
    </message>
    <message>
        <source>Vertical Zoom Out</source>
        <translation>垂直缩小</translation>
    </message>
    <message>
        <source>Vertical zoom out.</source>
        <translation>垂直缩小。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Exit the application.</source>
        <translation>退出程序。</translation>
    </message>
    <message>
        <source>&amp;About Wavorin</source>
        <translation>关于 Wavorin(&amp;A)</translation>
    </message>
    <message>
        <source>About Wavorin</source>
        <translation>关于 Wavorin</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>FFT</source>
        <translation>FFT</translation>
    </message>
    <message>
        <source>Prim/Sec</source>
        <translation>一次/二次</translation>
    </message>
    <message>
        <source>Primary/Secondary:</source>
        <translation>一次/二次：</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Show FFT Angles</source>
        <translation>显示 FFT 相角</translation>
    </message>
    <message>
        <source>Reference channel of the FFT angles</source>
        <translation>FFT 相角的参考通道</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>DR-files (*.zip *.cfg *.txt)</source>
        <translation>故障录波文件 (*.zip *.cfg *.txt)</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>无法读取文件 %1：
%2。</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>它是管道或设备</translation>
    </message>
    <message>
        <source>File not supported.</source>
        <translation>不支持该文件。</translation>
    </message>
    <message>
        <source>File loaded</source>
        <translation>文件已加载</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The zip file is not valid.
Please select another file.</source>
        <translation>ZIP 文件无效。
请选择其他文件。</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>%1 Files (*.%2);;All Files (*)</source>
        <translation>%1 文件 (*.%2);;所有文件 (*)</translation>
    </message>
    <message>
        <source>File saved.</source>
        <translation>文件已保存。</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>无法写入文件 %1：
%2。</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>保存故障录波</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>模拟量</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>开关量</translation>
    </message>
    <message>
        <source>P</source>
        <translation>一次值</translation>
    </message>
    <message>
        <source>S</source>
        <translation>二次值</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>标幺值</translation>
    </message>
    <message>
        <source>Graph %1</source>
        <translation>曲线图 %1</translation>
    </message>
    <message>
        <source>Start: %1    Trigger: %2</source>
        <translation>起始：%1    触发：%2</translation>
    </message>
    <message>
        <source>Draw the angles of spectrum traces, too</source>
        <translation>同时绘制频谱曲线的相角</translation>
    </message>
    <message>
        <source>Values of the primary or the secondary side, or per unit</source>
        <translation>一次侧值、二次侧值或标幺值</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as month/day/year and time of day</source>
        <translation>无法将 %1 %2 读作“月/日/年 时刻”</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as day/month/year and time of day</source>
        <translation>无法将 %1 %2 读作“日/月/年 时刻”</translation>
    </message>
    <message>
        <source>There is no data file %1.</source>
        <translation>没有数据文件 %1。</translation>
    </message>
    <message>
        <source>The data file %1 cannot be read.</source>
        <translation>无法读取数据文件 %1。</translation>
    </message>
    <message>
        <source>Its data are not ASCII.</source>
        <translation>其数据不是 ASCII 格式。</translation>
    </message>
    <message>
        <source>Its data file holds no sample.</source>
        <translation>其数据文件不含任何采样。</translation>
    </message>
    <message>
        <source>A file of it cannot be read to its end.</source>
        <translation>无法完整读取其文件。</translation>
    </message>
    <message>
        <source>There is too little memory for it.</source>
        <translation>内存不足，无法打开。</translation>
    </message>
    <message>
        <source>wavorin-convert may turn it into a recording that opens.</source>
        <translation>wavorin-convert 或可将其转换为能打开的故障录波。</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture with Heading</source>
        <translation>复制带标题的图片(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Save Picture with Heading...</source>
        <translation>保存带标题的图片(&amp;S)...</translation>
    </message>
    <message>
        <source>Save P%1 to P%2...</source>
        <translation>保存 P%1 至 P%2...</translation>
    </message>
    <message>
        <source>Plots &amp;by Unit</source>
        <translation>按单位添加曲线图(&amp;B)</translation>
    </message>
    <message>
        <source>Currents FFT</source>
        <translation>电流 FFT</translation>
    </message>
    <message>
        <source>Voltages FFT</source>
        <translation>电压 FFT</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>曲线图</translation>
    </message>
    <message>
        <source>Time in view</source>
        <translation>显示的时间</translation>
    </message>
</context>
<context>
    <name>MeasurementsDialog</name>
    <message>
        <source>Measurements</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>The fundamental over the cycle around the cursor</source>
        <translation>游标两侧一个周波内的基波</translation>
    </message>
    <message>
        <source>RMS of &amp;fundamental</source>
        <translation>基波有效值(&amp;F)</translation>
    </message>
    <message>
        <source>Positive where the channel leads the reference</source>
        <translation>通道超前参考通道时为正</translation>
    </message>
    <message>
        <source>&amp;Angle</source>
        <translation>相角(&amp;A)</translation>
    </message>
    <message>
        <source>With harmonics and DC, over the cycle before the cursor</source>
        <translation>含谐波和直流，取游标之前的一个周波</translation>
    </message>
    <message>
        <source>&amp;True RMS</source>
        <translation>真有效值(&amp;T)</translation>
    </message>
    <message>
        <source>The largest absolute value in the cycle before the cursor</source>
        <translation>游标之前一个周波内的最大绝对值</translation>
    </message>
    <message>
        <source>&amp;Peak</source>
        <translation>峰值(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reference:</source>
        <translation>参考通道(&amp;R)：</translation>
    </message>
    <message>
        <source>Reference channel of the angles</source>
        <translation>相角的参考通道</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>游标</translation>
    </message>
    <message>
        <source>Values at the cursors</source>
        <translation>各游标处的值</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Fro&amp;m:</source>
        <translation>从(&amp;M)：</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>到(&amp;O)：</translation>
    </message>
    <message>
        <source>Differences between two cursors</source>
        <translation>两个游标之间的差值</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>序分量</translation>
    </message>
    <message>
        <source>Phase &amp;1:</source>
        <translation>相 &amp;1：</translation>
    </message>
    <message>
        <source>Phase &amp;2:</source>
        <translation>相 &amp;2：</translation>
    </message>
    <message>
        <source>Phase &amp;3:</source>
        <translation>相 &amp;3：</translation>
    </message>
    <message>
        <source>Sequence components at the cursors</source>
        <translation>各游标处的序分量</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>通道(&amp;H)：</translation>
    </message>
    <message>
        <source>C&amp;ursor:</source>
        <translation>游标(&amp;U)：</translation>
    </message>
    <message>
        <source>Harmonics as bars</source>
        <translation>谐波柱状图</translation>
    </message>
    <message>
        <source>Harmonics of the cycle around the cursor</source>
        <translation>游标两侧一个周波的谐波</translation>
    </message>
    <message>
        <source>Copy the table that is shown, with tabs between the columns</source>
        <translation>复制所显示的表格，列间以制表符分隔</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>复制表格(&amp;C)</translation>
    </message>
    <message>
        <source>Save the table that is shown, with commas between the columns</source>
        <translation>保存所显示的表格，列间以逗号分隔</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>另存为 CSV(&amp;S)...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>secondary</source>
        <translation>二次</translation>
    </message>
    <message>
        <source>primary</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = 文件值 x 额定值</translation>
    </message>
    <message>
        <source>P = file value x rating</source>
        <translation>P = 文件值 x 额定值</translation>
    </message>
    <message>
        <source>There is no cursor.</source>
        <translation>没有游标。</translation>
    </message>
    <message>
        <source>No whole cycle of this channel lies around the cursor.</source>
        <translation>游标两侧没有该通道的完整周波。</translation>
    </message>
    <message>
        <source>Measurements: %1</source>
        <translation>测量：%1</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>另存为 CSV</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV 文件 (*.csv)</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>它是管道或设备</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>RMS of fundamental</source>
        <translation>基波有效值</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>相角</translation>
    </message>
    <message>
        <source>True RMS</source>
        <translation>真有效值</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>峰值</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>at (ms)</source>
        <translation>时刻 (ms)</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>cycles</source>
        <translation>周波</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>分量</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>有效值</translation>
    </message>
    <message>
        <source>Positive sequence</source>
        <translation>正序</translation>
    </message>
    <message>
        <source>Negative sequence</source>
        <translation>负序</translation>
    </message>
    <message>
        <source>Zero sequence</source>
        <translation>零序</translation>
    </message>
    <message>
        <source>Harmonic</source>
        <translation>谐波次数</translation>
    </message>
    <message>
        <source>RMS, %1</source>
        <translation>有效值，%1</translation>
    </message>
    <message>
        <source>% of fundamental</source>
        <translation>占基波的 %</translation>
    </message>
</context>
<context>
    <name>NamesMenu</name>
    <message>
        <source>Names &amp;As</source>
        <translation>名称编码(&amp;A)</translation>
    </message>
    <message>
        <source>As Read</source>
        <translation>按读入方式</translation>
    </message>
    <message>
        <source>The names seem to be in %1</source>
        <translation>名称似乎采用 %1 编码</translation>
    </message>
</context>
<context>
    <name>NoteSign</name>
    <message>
        <source>Notes: %1</source>
        <translation>备注：%1</translation>
    </message>
    <message>
        <source>What was noticed while the recording was read. Notes: %1</source>
        <translation>读取录波时发现的情况。备注：%1</translation>
    </message>
</context>
<context>
    <name>NoteTable</name>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Written by the revision of %1, read by the rules of 1999</source>
        <translation>按 %1 年版写成，按 1999 年版的规则读取</translation>
    </message>
    <message>
        <source>The total of %1 channels is not the sum of analog and digital ones, %2</source>
        <translation>通道总数 %1 不等于模拟与数字通道之和 %2</translation>
    </message>
    <message>
        <source>No sampling rates announced; where a rate line follows, it is read as the start</source>
        <translation>未声明采样率；若其后仍有采样率行，则被读作开始时间</translation>
    </message>
    <message>
        <source>Several lines of sampling rates; the last one, %1 Hz, is taken for all</source>
        <translation>有多行采样率；全部按最后一行 %1 Hz 处理</translation>
    </message>
    <message>
        <source>Start and trigger lie on two days; the trigger is placed by time of day alone</source>
        <translation>开始与触发不在同一天；触发位置仅按时刻确定</translation>
    </message>
    <message>
        <source>Data of type %1, read as ASCII</source>
        <translation>数据类型为 %1，按 ASCII 读取</translation>
    </message>
    <message>
        <source>The names seem to be in %1; see Names As in the menu of the plots</source>
        <translation>名称似乎采用 %1 编码；请用曲线图菜单中的“名称编码”</translation>
    </message>
    <message>
        <source>Fewer samples than the last rate line promises: %1 of %2</source>
        <translation>采样点少于最后一个采样率行所述：%1 / %2</translation>
    </message>
    <message>
        <source>More samples than the last rate line promises: %1 instead of %2</source>
        <translation>采样点多于最后一个采样率行所述：%1，应为 %2</translation>
    </message>
    <message>
        <source>A blank or short line ended the reading before the end of the file</source>
        <translation>空行或短行使读取在文件结束前终止</translation>
    </message>
    <message>
        <source>Too long a line, or too many samples for the file: not read from here on</source>
        <translation>行过长，或采样点对该文件而言过多：从此处起未读取</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too few</source>
        <translation>字段过少或过多；第一个这样的行少 %1 个</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too many</source>
        <translation>字段过少或过多；第一个这样的行多 %1 个</translation>
    </message>
    <message>
        <source>All time stamps are the same: %1 ms</source>
        <translation>所有时标相同：%1 ms</translation>
    </message>
    <message>
        <source>Time jumps ahead by %1 ms, at most by %2 ms</source>
        <translation>时间向前跳 %1 ms，最多 %2 ms</translation>
    </message>
    <message>
        <source>Time steps back by %1 ms, at most by %2 ms</source>
        <translation>时间倒退 %1 ms，最多 %2 ms</translation>
    </message>
    <message>
        <source>%1: marks of missing values, read as numbers</source>
        <translation>%1：缺失值标记，按数值读取</translation>
    </message>
</context>
<context>
    <name>NotesDialog</name>
    <message>
        <source>Notes on the Recording</source>
        <translation>录波备注</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Copy all rows, with tabs between the columns</source>
        <translation>复制所有行，列间以制表符分隔</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>复制表格(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>OpenHint</name>
    <message>
        <source>Open a recording: File &gt; Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here.</source>
        <translation>打开故障录波：文件(F) &gt; 打开(O)... (Ctrl+O)，或将 .cfg、.zip 或 .txt 文件拖放到此处。</translation>
    </message>
    <message>
        <source>Recent recordings:</source>
        <translation>最近打开的录波：</translation>
    </message>
</context>
<context>
    <name>OtherRecordings</name>
    <message>
        <source>Open &amp;Next in Folder</source>
        <translation>打开文件夹中的下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Open &amp;Previous in Folder</source>
        <translation>打开文件夹中的上一个(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Recent Recordings</source>
        <translation>最近打开的录波(&amp;R)</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>&amp;Earlier</source>
        <translation>更早(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>更晚(&amp;L)</translation>
    </message>
    <message>
        <source>Previous Vie&amp;w</source>
        <translation>上一视图(&amp;W)</translation>
    </message>
    <message>
        <source>Whole Recording</source>
        <translation>整个录波</translation>
    </message>
    <message>
        <source>&amp;Zoom to P%1-P%2</source>
        <translation>缩放到 P%1-P%2(&amp;Z)</translation>
    </message>
    <message>
        <source>Cursor Here</source>
        <translation>在此处添加游标</translation>
    </message>
    <message>
        <source>Cursor at Tri&amp;gger</source>
        <translation>在触发时刻添加游标(&amp;G)</translation>
    </message>
    <message>
        <source>Cursor at &amp;Time...</source>
        <translation>在指定时间添加游标(&amp;T)...</translation>
    </message>
    <message>
        <source>New Cursor</source>
        <translation>新游标</translation>
    </message>
    <message>
        <source>Time in ms, or time of day (hh:mm:ss.zzz):</source>
        <translation>时间 (ms) 或时刻 (hh:mm:ss.zzz)：</translation>
    </message>
    <message>
        <source>Cursor at Previous &amp;Change</source>
        <translation>在上一次变位处添加游标(&amp;C)</translation>
    </message>
    <message>
        <source>Cursor at Ne&amp;xt Change</source>
        <translation>在下一次变位处添加游标(&amp;X)</translation>
    </message>
    <message>
        <source>Cursor at &amp;Maximum in View</source>
        <translation>在视图最大值处添加游标(&amp;M)</translation>
    </message>
    <message>
        <source>Cursor at M&amp;inimum in View</source>
        <translation>在视图最小值处添加游标(&amp;I)</translation>
    </message>
    <message>
        <source>E&amp;dit Title</source>
        <translation>编辑标题(&amp;D)</translation>
    </message>
    <message>
        <source>Channel C&amp;olor</source>
        <translation>通道颜色(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Move to Time...</source>
        <translation>移动到指定时间(&amp;M)...</translation>
    </message>
    <message>
        <source>Move Cursor</source>
        <translation>移动游标</translation>
    </message>
    <message>
        <source>Step to &amp;Previous Sample</source>
        <translation>移至上一个采样点(&amp;P)</translation>
    </message>
    <message>
        <source>Step to &amp;Next Sample</source>
        <translation>移至下一个采样点(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Plotter</name>
    <message>
        <source>Trigger: %1 ms</source>
        <translation>触发：%1 ms</translation>
    </message>
    <message>
        <source>%1 Plotter</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Remove Cursor</source>
        <translation>删除游标</translation>
    </message>
    <message>
        <source>Remove All Cursors</source>
        <translation>删除所有游标</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增加(&amp;I)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减少(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Select Color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>基本颜色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>自定义颜色(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>添加到自定义颜色(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>从屏幕取色(&amp;P)</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>光标位于 %1, %2
按 Esc 键取消</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>色调(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>饱和度(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>亮度(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>红(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>绿(&amp;G)：</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>蓝(&amp;U)：</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>透明度(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML：</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择(&amp;C)</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>最近访问的位置</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示 </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”是写保护的。
仍要删除它吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请检查文件名是否正确。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请检查文件夹名是否正确。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>我的电脑</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>文件名无效</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;不能使用名称“%1”。&lt;/b&gt;&lt;p&gt;请换一个更短或不含标点符号的名称。</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>文件或文件夹不存在</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>要打开的是文件夹</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许此操作</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备或资源正忙</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>路径中有一部分不是文件夹</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>目标是文件夹</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>文件正作为程序运行</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>符号链接的层数过多</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>文件在服务器上已失效</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>文件 %1 不可写</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>文件名指向一个文件夹</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
</context>
<context>
    <name>ReportPicture</name>
    <message>
        <source>Start: %1 %2</source>
        <translation>起始：%1 %2</translation>
    </message>
    <message>
        <source>Trigger at %1 ms</source>
        <translation>触发位于 %1 ms</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>游标</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>时间 (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>时刻</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>距触发 (ms)</translation>
    </message>
    <message>
        <source>From Cursor Before (ms)</source>
        <translation>距上一游标 (ms)</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>File path:</source>
        <translation>文件路径：</translation>
    </message>
    <message>
        <source>*File aready exists</source>
        <translation>*文件已存在</translation>
    </message>
    <message>
        <source>Recording start point (ms):</source>
        <translation>录波起始点 (ms)：</translation>
    </message>
    <message>
        <source>Recording end point (ms):</source>
        <translation>录波结束点 (ms)：</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>保存故障录波</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>File already exists. Are you sure you want to overwrite it?</source>
        <translation>文件已存在。确定要覆盖它吗？</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>The file that is there may not be replaced</source>
        <translation>已有文件不允许被替换</translation>
    </message>
    <message>
        <source>The folder may not be written to</source>
        <translation>该文件夹不可写入</translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>E&amp;vents...</source>
        <translation>事件(&amp;V)...</translation>
    </message>
    <message>
        <source>Meas&amp;urements...</source>
        <translation>测量(&amp;U)...</translation>
    </message>
    <message>
        <source>Notes...</source>
        <translation>备注...</translation>
    </message>
</context>
<context>
    <name>StatusField</name>
    <message>
        <source>P = file value x rating</source>
        <translation>P = 文件值 x 额定值</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>一次值</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = 文件值 x 额定值</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>二次值</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>标幺值</translation>
    </message>
    <message>
        <source>from trigger: %1 ms</source>
        <translation>距触发：%1 ms</translation>
    </message>
    <message>
        <source>%1 was not opened: the name does not end with .cfg or .zip</source>
        <translation>未打开 %1：文件名不以 .cfg 或 .zip 结尾</translation>
    </message>
    <message>
        <source>%1 was not opened: wavorin-convert turns .cff files into recordings that open</source>
        <translation>未打开 %1：wavorin-convert 可将 .cff 文件转换为能打开的故障录波</translation>
    </message>
</context>
<context>
    <name>VectorDialog</name>
    <message>
        <source>Vectors</source>
        <translation>相量图</translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>参考通道：</translation>
    </message>
    <message>
        <source>Add a diagram</source>
        <translation>添加相量图</translation>
    </message>
</context>
<context>
    <name>VectorWidget</name>
    <message>
        <source>Remove this diagram</source>
        <translation>移除此相量图</translation>
    </message>
    <message>
        <source>Measurements...</source>
        <translation>测量...</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>颜色...</translation>
    </message>
    <message>
        <source>%1 at P%2</source>
        <translation>P%2 处的 %1</translation>
    </message>
    <message>
        <source>RMS: %1</source>
        <translation>有效值：%1</translation>
    </message>
    <message>
        <source>Angle to %1: %2°</source>
        <translation>相对于 %1 的角度：%2°</translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation>角度：%1°</translation>
    </message>
    <message>
        <source>Phasor diagram</source>
        <translation>相量图</translation>
    </message>
    <message>
        <source>RMS values</source>
        <translation>有效值</translation>
    </message>
</context>
<context>
    <name>plotterDg</name>
    <message>
        <source>%1 at %2 ms</source>
        <translation>%1，%2 ms 时</translation>
    </message>
</context>
</TS>
