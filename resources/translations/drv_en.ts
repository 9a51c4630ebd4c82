<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AddPlotterDialog</name>
    <message>
        <source>Add Graph</source>
        <translation>Add Graph</translation>
    </message>
    <message>
        <source>Graph name: </source>
        <translation>Graph name: </translation>
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
        <translation>Add to the plot</translation>
    </message>
    <message>
        <source>Remove from the plot</source>
        <translation>Remove from the plot</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Channels of the plot</source>
        <translation>Channels of the plot</translation>
    </message>
</context>
<context>
    <name>CTVTDialog</name>
    <message>
        <source>Rescale CTVT</source>
        <translation>Rescale CTVT</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primary</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Secondary</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Multiplies the values of the recorded side by its rating, even where nothing was changed</source>
        <translation>Multiplies the values of the recorded side by its rating, even where nothing was changed</translation>
    </message>
    <message>
        <source>%1, primary</source>
        <translation>%1, primary</translation>
    </message>
    <message>
        <source>%1, secondary</source>
        <translation>%1, secondary</translation>
    </message>
</context>
<context>
    <name>EventTable</name>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Time (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>Clock Time</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>From Trigger (ms)</translation>
    </message>
    <message>
        <source>From Row Before (ms)</source>
        <translation>From Row Before (ms)</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
</context>
<context>
    <name>EventsDialog</name>
    <message>
        <source>Events</source>
        <translation>Events</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Show only channels whose names contain this text</source>
        <translation>Show only channels whose names contain this text</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>C&amp;hannel:</translation>
    </message>
    <message>
        <source>A click shows the time in the plots, a double-click sets a cursor there</source>
        <translation>A click shows the time in the plots, a double-click sets a cursor there</translation>
    </message>
    <message>
        <source>Copy all rows that pass the filter, with tabs between the columns</source>
        <translation>Copy all rows that pass the filter, with tabs between the columns</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>&amp;Copy Table</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>All Channels</translation>
    </message>
</context>
<context>
    <name>LoadingProgress</name>
    <message>
        <source>Reading: %p%</source>
        <translation>Reading: %p%</translation>
    </message>
    <message>
        <source>Phasors: %p%</source>
        <translation>Phasors: %p%</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>about %1 s left</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>about %1 min left</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Stop loading</translation>
    </message>
    <message>
        <source>Stop loading (Esc)</source>
        <translation>Stop loading (Esc)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Device Information</source>
        <translation>Device Information</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Location:</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>Start Date:</translation>
    </message>
    <message>
        <source>Start Time:</source>
        <translation>Start Time:</translation>
    </message>
    <message>
        <source>Convert To Localtime</source>
        <translation>Convert To Localtime</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Device:</translation>
    </message>
    <message>
        <source>Trigger Date:</source>
        <translation>Trigger Date:</translation>
    </message>
    <message>
        <source>Trigger Time:</source>
        <translation>Trigger Time:</translation>
    </message>
    <message>
        <source>Analog Channels:</source>
        <translation>Analog Channels:</translation>
    </message>
    <message>
        <source>Digital Channels:</source>
        <translation>Digital Channels:</translation>
    </message>
    <message>
        <source>Created by </source>
        <translation>Created by </translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Open an existing file.</source>
        <translation>Open an existing file.</translation>
    </message>
    <message>
        <source>&amp;Save As..</source>
        <translation>&amp;Save As..</translation>
    </message>
    <message>
        <source>Save recording to file.</source>
        <translation>Save recording to file.</translation>
    </message>
    <message>
        <source>Save As &amp;Primary</source>
        <translation>Save As &amp;Primary</translation>
    </message>
    <message>
        <source>Save as a primary type.</source>
        <translation>Save as a primary type.</translation>
    </message>
    <message>
        <source>&amp;Add Plotter</source>
        <translation>&amp;Add Plotter</translation>
    </message>
    <message>
        <source>Add analog plotter.</source>
        <translation>Add analog plotter.</translation>
    </message>
    <message>
        <source>&amp;Remove Plotter</source>
        <translation>&amp;Remove Plotter</translation>
    </message>
    <message>
        <source>Remoe analog plotter.</source>
        <translation>Remoe analog plotter.</translation>
    </message>
    <message>
        <source>&amp;Remove All Cursors</source>
        <translation>&amp;Remove All Cursors</translation>
    </message>
    <message>
        <source>Remove all cursors.</source>
        <translation>Remove all cursors.</translation>
    </message>
    <message>
        <source>&amp;Show Vectors</source>
        <translation>&amp;Show Vectors</translation>
    </message>
    <message>
        <source>Show vectors dialog.</source>
        <translation>Show vectors dialog.</translation>
    </message>
    <message>
        <source>Rescale CTVT</source>
        <translation>Rescale CTVT</translation>
    </message>
    <message>
        <source>Set CTVT ratios.</source>
        <translation>Set CTVT ratios.</translation>
    </message>
    <message>
        <source>&amp;Save screenshot</source>
        <translation>&amp;Save screenshot</translation>
    </message>
    <message>
        <source>Save screenshot.</source>
        <translation>Save screenshot.</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>&amp;Copy to clipboard</translation>
    </message>
    <message>
        <source>Copy to clipboard.</source>
        <translation>Copy to clipboard.</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message>
        <source>Zoom in.</source>
        <translation>Zoom in.</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message>
        <source>Zoom out.</source>
        <translation>Zoom out.</translation>
    </message>
    <message>
        <source>Zoom Reset</source>
        <translation>Zoom Reset</translation>
    </message>
    <message>
        <source>Zoom reset.</source>
        <translation>Zoom reset.</translation>
    </message>
    <message>
        <source>Vertical Zoom In</source>
        <translation>Vertical Zoom In</translation>
    </message>
    <message>
        <source>Vertical zoom in.</source>
        <translation>Vertical zoom in.</translation>
    </message>
    <message>
        <source>Vertical Zoom Out</source>
        <translation>Vertical Zoom Out</translation>
    </message>
    <message>
        <source>Vertical zoom out.</source>
        <translation>Vertical zoom out.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>Exit the application.</source>
        <translation>Exit the application.</translation>
    </message>
    <message>
        <source>&amp;About Wavorin</source>
        <translation>&amp;About Wavorin</translation>
    </message>
    <message>
        <source>About Wavorin</source>
        <translation>About Wavorin</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>FFT</source>
        <translation>FFT</translation>
    </message>
    <message>
        <source>Prim/Sec</source>
        <translation>Prim/Sec</translation>
    </message>
    <message>
        <source>Primary/Secondary:</source>
        <translation>Primary/Secondary:</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Show FFT Angles</source>
        <translation>Show FFT Angles</translation>
    </message>
    <message>
        <source>Reference channel of the FFT angles</source>
        <translation>Reference channel of the FFT angles</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>DR-files (*.zip *.cfg *.txt)</source>
        <translation>DR-files (*.zip *.cfg *.txt)</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Cannot read file %1:
%2.</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>It is a pipe or a device</translation>
    </message>
    <message>
        <source>File not supported.</source>
        <translation>File not supported.</translation>
    </message>
    <message>
        <source>File loaded</source>
        <translation>File loaded</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The zip file is not valid.
Please select another file.</source>
        <translation>The zip file is not valid.
Please select another file.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>%1 Files (*.%2);;All Files (*)</source>
        <translation>%1 Files (*.%2);;All Files (*)</translation>
    </message>
    <message>
        <source>File saved.</source>
        <translation>File saved.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Cannot write file %1:
%2.</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>Save recording</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analog</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Digital</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>Per Unit</translation>
    </message>
    <message>
        <source>Graph %1</source>
        <translation>Graph %1</translation>
    </message>
    <message>
        <source>Start: %1    Trigger: %2</source>
        <translation>Start: %1    Trigger: %2</translation>
    </message>
    <message>
        <source>Draw the angles of spectrum traces, too</source>
        <translation>Draw the angles of spectrum traces, too</translation>
    </message>
    <message>
        <source>Values of the primary or the secondary side, or per unit</source>
        <translation>Values of the primary or the secondary side, or per unit</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as month/day/year and time of day</source>
        <translation>%1 %2 cannot be read as month/day/year and time of day</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as day/month/year and time of day</source>
        <translation>%1 %2 cannot be read as day/month/year and time of day</translation>
    </message>
    <message>
        <source>There is no data file %1.</source>
        <translation>There is no data file %1.</translation>
    </message>
    <message>
        <source>The data file %1 cannot be read.</source>
        <translation>The data file %1 cannot be read.</translation>
    </message>
    <message>
        <source>Its data are not ASCII.</source>
        <translation>Its data are not ASCII.</translation>
    </message>
    <message>
        <source>Its data file holds no sample.</source>
        <translation>Its data file holds no sample.</translation>
    </message>
    <message>
        <source>A file of it cannot be read to its end.</source>
        <translation>A file of it cannot be read to its end.</translation>
    </message>
    <message>
        <source>There is too little memory for it.</source>
        <translation>There is too little memory for it.</translation>
    </message>
    <message>
        <source>wavorin-convert may turn it into a recording that opens.</source>
        <translation>wavorin-convert may turn it into a recording that opens.</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture with Heading</source>
        <translation>Cop&amp;y Picture with Heading</translation>
    </message>
    <message>
        <source>&amp;Save Picture with Heading...</source>
        <translation>&amp;Save Picture with Heading...</translation>
    </message>
    <message>
        <source>Save P%1 to P%2...</source>
        <translation>Save P%1 to P%2...</translation>
    </message>
    <message>
        <source>Plots &amp;by Unit</source>
        <translation>Plots &amp;by Unit</translation>
    </message>
    <message>
        <source>Currents FFT</source>
        <translation>Currents FFT</translation>
    </message>
    <message>
        <source>Voltages FFT</source>
        <translation>Voltages FFT</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Plots</translation>
    </message>
    <message>
        <source>Time in view</source>
        <translation>Time in view</translation>
    </message>
</context>
<context>
    <name>MeasurementsDialog</name>
    <message>
        <source>Measurements</source>
        <translation>Measurements</translation>
    </message>
    <message>
        <source>The fundamental over the cycle around the cursor</source>
        <translation>The fundamental over the cycle around the cursor</translation>
    </message>
    <message>
        <source>RMS of &amp;fundamental</source>
        <translation>RMS of &amp;fundamental</translation>
    </message>
    <message>
        <source>Positive where the channel leads the reference</source>
        <translation>Positive where the channel leads the reference</translation>
    </message>
    <message>
        <source>&amp;Angle</source>
        <translation>&amp;Angle</translation>
    </message>
    <message>
        <source>With harmonics and DC, over the cycle before the cursor</source>
        <translation>With harmonics and DC, over the cycle before the cursor</translation>
    </message>
    <message>
        <source>&amp;True RMS</source>
        <translation>&amp;True RMS</translation>
    </message>
    <message>
        <source>The largest absolute value in the cycle before the cursor</source>
        <translation>The largest absolute value in the cycle before the cursor</translation>
    </message>
    <message>
        <source>&amp;Peak</source>
        <translation>&amp;Peak</translation>
    </message>
    <message>
        <source>&amp;Reference:</source>
        <translation>&amp;Reference:</translation>
    </message>
    <message>
        <source>Reference channel of the angles</source>
        <translation>Reference channel of the angles</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>Cursors</translation>
    </message>
    <message>
        <source>Values at the cursors</source>
        <translation>Values at the cursors</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Differences</translation>
    </message>
    <message>
        <source>Fro&amp;m:</source>
        <translation>Fro&amp;m:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>T&amp;o:</translation>
    </message>
    <message>
        <source>Differences between two cursors</source>
        <translation>Differences between two cursors</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>Sequences</translation>
    </message>
    <message>
        <source>Phase &amp;1:</source>
        <translation>Phase &amp;1:</translation>
    </message>
    <message>
        <source>Phase &amp;2:</source>
        <translation>Phase &amp;2:</translation>
    </message>
    <message>
        <source>Phase &amp;3:</source>
        <translation>Phase &amp;3:</translation>
    </message>
    <message>
        <source>Sequence components at the cursors</source>
        <translation>Sequence components at the cursors</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonics</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>C&amp;hannel:</translation>
    </message>
    <message>
        <source>C&amp;ursor:</source>
        <translation>C&amp;ursor:</translation>
    </message>
    <message>
        <source>Harmonics as bars</source>
        <translation>Harmonics as bars</translation>
    </message>
    <message>
        <source>Harmonics of the cycle around the cursor</source>
        <translation>Harmonics of the cycle around the cursor</translation>
    </message>
    <message>
        <source>Copy the table that is shown, with tabs between the columns</source>
        <translation>Copy the table that is shown, with tabs between the columns</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>&amp;Copy Table</translation>
    </message>
    <message>
        <source>Save the table that is shown, with commas between the columns</source>
        <translation>Save the table that is shown, with commas between the columns</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>&amp;Save as CSV...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>secondary</source>
        <translation>secondary</translation>
    </message>
    <message>
        <source>primary</source>
        <translation>primary</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = file value x rating</translation>
    </message>
    <message>
        <source>P = file value x rating</source>
        <translation>P = file value x rating</translation>
    </message>
    <message>
        <source>There is no cursor.</source>
        <translation>There is no cursor.</translation>
    </message>
    <message>
        <source>No whole cycle of this channel lies around the cursor.</source>
        <translation>No whole cycle of this channel lies around the cursor.</translation>
    </message>
    <message>
        <source>Measurements: %1</source>
        <translation>Measurements: %1</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Save as CSV</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV Files (*.csv)</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>It is a pipe or a device</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>RMS of fundamental</source>
        <translation>RMS of fundamental</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>True RMS</source>
        <translation>True RMS</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Peak</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Smallest</translation>
    </message>
    <message>
        <source>at (ms)</source>
        <translation>at (ms)</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Largest</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>cycles</source>
        <translation>cycles</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Component</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Positive sequence</source>
        <translation>Positive sequence</translation>
    </message>
    <message>
        <source>Negative sequence</source>
        <translation>Negative sequence</translation>
    </message>
    <message>
        <source>Zero sequence</source>
        <translation>Zero sequence</translation>
    </message>
    <message>
        <source>Harmonic</source>
        <translation>Harmonic</translation>
    </message>
    <message>
        <source>RMS, %1</source>
        <translation>RMS, %1</translation>
    </message>
    <message>
        <source>% of fundamental</source>
        <translation>% of fundamental</translation>
    </message>
</context>
<context>
    <name>NamesMenu</name>
    <message>
        <source>Names &amp;As</source>
        <translation>Names &amp;As</translation>
    </message>
    <message>
        <source>As Read</source>
        <translation>As Read</translation>
    </message>
    <message>
        <source>The names seem to be in %1</source>
        <translation>The names seem to be in %1</translation>
    </message>
</context>
<context>
    <name>NoteSign</name>
    <message>
        <source>Notes: %1</source>
        <translation>Notes: %1</translation>
    </message>
    <message>
        <source>What was noticed while the recording was read. Notes: %1</source>
        <translation>What was noticed while the recording was read. Notes: %1</translation>
    </message>
</context>
<context>
    <name>NoteTable</name>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>How Many</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Written by the revision of %1, read by the rules of 1999</source>
        <translation>Written by the revision of %1, read by the rules of 1999</translation>
    </message>
    <message>
        <source>The total of %1 channels is not the sum of analog and digital ones, %2</source>
        <translation>The total of %1 channels is not the sum of analog and digital ones, %2</translation>
    </message>
    <message>
        <source>No sampling rates announced; where a rate line follows, it is read as the start</source>
        <translation>No sampling rates announced; where a rate line follows, it is read as the start</translation>
    </message>
    <message>
        <source>Several lines of sampling rates; the last one, %1 Hz, is taken for all</source>
        <translation>Several lines of sampling rates; the last one, %1 Hz, is taken for all</translation>
    </message>
    <message>
        <source>Start and trigger lie on two days; the trigger is placed by time of day alone</source>
        <translation>Start and trigger lie on two days; the trigger is placed by time of day alone</translation>
    </message>
    <message>
        <source>Data of type %1, read as ASCII</source>
        <translation>Data of type %1, read as ASCII</translation>
    </message>
    <message>
        <source>The names seem to be in %1; see Names As in the menu of the plots</source>
        <translation>The names seem to be in %1; see Names As in the menu of the plots</translation>
    </message>
    <message>
        <source>Fewer samples than the last rate line promises: %1 of %2</source>
        <translation>Fewer samples than the last rate line promises: %1 of %2</translation>
    </message>
    <message>
        <source>More samples than the last rate line promises: %1 instead of %2</source>
        <translation>More samples than the last rate line promises: %1 instead of %2</translation>
    </message>
    <message>
        <source>A blank or short line ended the reading before the end of the file</source>
        <translation>A blank or short line ended the reading before the end of the file</translation>
    </message>
    <message>
        <source>Too long a line, or too many samples for the file: not read from here on</source>
        <translation>Too long a line, or too many samples for the file: not read from here on</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too few</source>
        <translation>Too few or too many fields; in the first such line %1 too few</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too many</source>
        <translation>Too few or too many fields; in the first such line %1 too many</translation>
    </message>
    <message>
        <source>All time stamps are the same: %1 ms</source>
        <translation>All time stamps are the same: %1 ms</translation>
    </message>
    <message>
        <source>Time jumps ahead by %1 ms, at most by %2 ms</source>
        <translation>Time jumps ahead by %1 ms, at most by %2 ms</translation>
    </message>
    <message>
        <source>Time steps back by %1 ms, at most by %2 ms</source>
        <translation>Time steps back by %1 ms, at most by %2 ms</translation>
    </message>
    <message>
        <source>%1: marks of missing values, read as numbers</source>
        <translation>%1: marks of missing values, read as numbers</translation>
    </message>
</context>
<context>
    <name>NotesDialog</name>
    <message>
        <source>Notes on the Recording</source>
        <translation>Notes on the Recording</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Copy all rows, with tabs between the columns</source>
        <translation>Copy all rows, with tabs between the columns</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>&amp;Copy Table</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>OpenHint</name>
    <message>
        <source>Open a recording: File &gt; Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here.</source>
        <translation>Open a recording: File &gt; Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here.</translation>
    </message>
    <message>
        <source>Recent recordings:</source>
        <translation>Recent recordings:</translation>
    </message>
</context>
<context>
    <name>OtherRecordings</name>
    <message>
        <source>Open &amp;Next in Folder</source>
        <translation>Open &amp;Next in Folder</translation>
    </message>
    <message>
        <source>Open &amp;Previous in Folder</source>
        <translation>Open &amp;Previous in Folder</translation>
    </message>
    <message>
        <source>&amp;Recent Recordings</source>
        <translation>&amp;Recent Recordings</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>&amp;Earlier</source>
        <translation>&amp;Earlier</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>Previous Vie&amp;w</source>
        <translation>Previous Vie&amp;w</translation>
    </message>
    <message>
        <source>Whole Recording</source>
        <translation>Whole Recording</translation>
    </message>
    <message>
        <source>&amp;Zoom to P%1-P%2</source>
        <translation>&amp;Zoom to P%1-P%2</translation>
    </message>
    <message>
        <source>Cursor Here</source>
        <translation>Cursor Here</translation>
    </message>
    <message>
        <source>Cursor at Tri&amp;gger</source>
        <translation>Cursor at Tri&amp;gger</translation>
    </message>
    <message>
        <source>Cursor at &amp;Time...</source>
        <translation>Cursor at &amp;Time...</translation>
    </message>
    <message>
        <source>New Cursor</source>
        <translation>New Cursor</translation>
    </message>
    <message>
        <source>Time in ms, or time of day (hh:mm:ss.zzz):</source>
        <translation>Time in ms, or time of day (hh:mm:ss.zzz):</translation>
    </message>
    <message>
        <source>Cursor at Previous &amp;Change</source>
        <translation>Cursor at Previous &amp;Change</translation>
    </message>
    <message>
        <source>Cursor at Ne&amp;xt Change</source>
        <translation>Cursor at Ne&amp;xt Change</translation>
    </message>
    <message>
        <source>Cursor at &amp;Maximum in View</source>
        <translation>Cursor at &amp;Maximum in View</translation>
    </message>
    <message>
        <source>Cursor at M&amp;inimum in View</source>
        <translation>Cursor at M&amp;inimum in View</translation>
    </message>
    <message>
        <source>E&amp;dit Title</source>
        <translation>E&amp;dit Title</translation>
    </message>
    <message>
        <source>Channel C&amp;olor</source>
        <translation>Channel C&amp;olor</translation>
    </message>
    <message>
        <source>&amp;Move to Time...</source>
        <translation>&amp;Move to Time...</translation>
    </message>
    <message>
        <source>Move Cursor</source>
        <translation>Move Cursor</translation>
    </message>
    <message>
        <source>Step to &amp;Previous Sample</source>
        <translation>Step to &amp;Previous Sample</translation>
    </message>
    <message>
        <source>Step to &amp;Next Sample</source>
        <translation>Step to &amp;Next Sample</translation>
    </message>
</context>
<context>
    <name>Plotter</name>
    <message>
        <source>Trigger: %1 ms</source>
        <translation>Trigger: %1 ms</translation>
    </message>
    <message>
        <source>%1 Plotter</source>
        <translation>%1 Plotter</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Remove Cursor</source>
        <translation>Remove Cursor</translation>
    </message>
    <message>
        <source>Remove All Cursors</source>
        <translation>Remove All Cursors</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Step up</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Step &amp;down</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Select Color</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>&amp;Basic colors</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Custom colors</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>&amp;Add to Custom Colors</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Pick Screen Color</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Cursor at %1, %2
Press ESC to cancel</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>Hu&amp;e:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Sat:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>&amp;Val:</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Red:</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Green:</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>Bl&amp;ue:</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>A&amp;lpha channel:</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choose</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Directory:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Go forward</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Parent Directory</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Go to the parent directory</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Create New Folder</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Create a New Folder</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>List View</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Change to list view mode</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Detail View</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Change to detail view mode</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>List of places and bookmarks</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Recent Places</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Show </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Show &amp;hidden files</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 File</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Are you sure you want to delete &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Could not delete directory.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File not found.
Please verify the correct file name was given.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Directory not found.
Please verify the correct directory name was given.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 already exists.
Do you want to replace it?</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>My Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Invalid filename</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Too many open files</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No such file or directory</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No space left on device</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>file to open is a directory</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operation not permitted</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Input/output error</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Device or resource busy</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Not a directory</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Is a directory</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Text file busy</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>File too large</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Read-only file system</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>File name too long</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Too many levels of symbolic links</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Stale file handle</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Disk quota exceeded</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Existing file %1 is not writable</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Filename refers to a directory</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scroll here</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Left edge</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Right edge</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page left</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page right</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page up</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page down</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scroll left</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scroll right</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copy &amp;Link Location</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>ReportPicture</name>
    <message>
        <source>Start: %1 %2</source>
        <translation>Start: %1 %2</translation>
    </message>
    <message>
        <source>Trigger at %1 ms</source>
        <translation>Trigger at %1 ms</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Time (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>Clock Time</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>From Trigger (ms)</translation>
    </message>
    <message>
        <source>From Cursor Before (ms)</source>
        <translation>From Cursor Before (ms)</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>File path:</source>
        <translation>File path:</translation>
    </message>
    <message>
        <source>*File aready exists</source>
        <translation>*File aready exists</translation>
    </message>
    <message>
        <source>Recording start point (ms):</source>
        <translation>Recording start point (ms):</translation>
    </message>
    <message>
        <source>Recording end point (ms):</source>
        <translation>Recording end point (ms):</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>Save recording</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Save file</translation>
    </message>
    <message>
        <source>File already exists. Are you sure you want to overwrite it?</source>
        <translation>File already exists. Are you sure you want to overwrite it?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Choose the file</translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation>There is no such folder</translation>
    </message>
    <message>
        <source>The file that is there may not be replaced</source>
        <translation>The file that is there may not be replaced</translation>
    </message>
    <message>
        <source>The folder may not be written to</source>
        <translation>The folder may not be written to</translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>E&amp;vents...</source>
        <translation>E&amp;vents...</translation>
    </message>
    <message>
        <source>Meas&amp;urements...</source>
        <translation>Meas&amp;urements...</translation>
    </message>
    <message>
        <source>Notes...</source>
        <translation>Notes...</translation>
    </message>
</context>
<context>
    <name>StatusField</name>
    <message>
        <source>P = file value x rating</source>
        <translation>P = file value x rating</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primary</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = file value x rating</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Secondary</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>Per Unit</translation>
    </message>
    <message>
        <source>from trigger: %1 ms</source>
        <translation>from trigger: %1 ms</translation>
    </message>
    <message>
        <source>%1 was not opened: the name does not end with .cfg or .zip</source>
        <translation>%1 was not opened: the name does not end with .cfg or .zip</translation>
    </message>
    <message>
        <source>%1 was not opened: wavorin-convert turns .cff files into recordings that open</source>
        <translation>%1 was not opened: wavorin-convert turns .cff files into recordings that open</translation>
    </message>
</context>
<context>
    <name>VectorDialog</name>
    <message>
        <source>Vectors</source>
        <translation>Vectors</translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Reference: </translation>
    </message>
    <message>
        <source>Add a diagram</source>
        <translation>Add a diagram</translation>
    </message>
</context>
<context>
    <name>VectorWidget</name>
    <message>
        <source>Remove this diagram</source>
        <translation>Remove this diagram</translation>
    </message>
    <message>
        <source>Measurements...</source>
        <translation>Measurements...</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Color...</translation>
    </message>
    <message>
        <source>%1 at P%2</source>
        <translation>%1 at P%2</translation>
    </message>
    <message>
        <source>RMS: %1</source>
        <translation>RMS: %1</translation>
    </message>
    <message>
        <source>Angle to %1: %2°</source>
        <translation>Angle to %1: %2°</translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation>Angle: %1°</translation>
    </message>
    <message>
        <source>Phasor diagram</source>
        <translation>Phasor diagram</translation>
    </message>
    <message>
        <source>RMS values</source>
        <translation>RMS values</translation>
    </message>
</context>
<context>
    <name>plotterDg</name>
    <message>
        <source>%1 at %2 ms</source>
        <translation>%1 at %2 ms</translation>
    </message>
</context>
</TS>
