<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi_FI" sourcelanguage="en_US">
<context>
    <name>AddPlotterDialog</name>
    <message>
        <source>Add Graph</source>
        <translation>Lisää kuvaaja</translation>
    </message>
    <message>
        <source>Graph name: </source>
        <translation>Kuvaajan nimi: </translation>
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
        <translation>Lisää kuvaajaan</translation>
    </message>
    <message>
        <source>Remove from the plot</source>
        <translation>Poista kuvaajasta</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanavat</translation>
    </message>
    <message>
        <source>Channels of the plot</source>
        <translation>Kuvaajan kanavat</translation>
    </message>
</context>
<context>
    <name>CTVTDialog</name>
    <message>
        <source>Rescale CTVT</source>
        <translation>Virta- ja jännitemuuntajien muuntosuhteet</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signaali</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Ensiö</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Toisio</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aseta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Multiplies the values of the recorded side by its rating, even where nothing was changed</source>
        <translation>Kertoo tallennetun puolen arvot sen nimellisarvolla, vaikka mitään ei olisi muutettu</translation>
    </message>
    <message>
        <source>%1, primary</source>
        <translation>%1, ensiö</translation>
    </message>
    <message>
        <source>%1, secondary</source>
        <translation>%1, toisio</translation>
    </message>
</context>
<context>
    <name>EventTable</name>
    <message>
        <source>Trigger</source>
        <translation>Liipaisu</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Aika (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>Kellonaika</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>Liipaisusta (ms)</translation>
    </message>
    <message>
        <source>From Row Before (ms)</source>
        <translation>Edellisestä (ms)</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanava</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Tila</translation>
    </message>
</context>
<context>
    <name>EventsDialog</name>
    <message>
        <source>Events</source>
        <translation>Tapahtumat</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Suodatin:</translation>
    </message>
    <message>
        <source>Show only channels whose names contain this text</source>
        <translation>Näytä vain kanavat, joiden nimessä on tämä teksti</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>&amp;Kanava:</translation>
    </message>
    <message>
        <source>A click shows the time in the plots, a double-click sets a cursor there</source>
        <translation>Napsautus näyttää ajan kuvaajissa, kaksoisnapsautus asettaa siihen kursorin</translation>
    </message>
    <message>
        <source>Copy all rows that pass the filter, with tabs between the columns</source>
        <translation>Kopioi kaikki suodatetut rivit sarkaimin eroteltuina</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>K&amp;opioi taulukko</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Kaikki kanavat</translation>
    </message>
</context>
<context>
    <name>LoadingProgress</name>
    <message>
        <source>Reading: %p%</source>
        <translation>Luetaan: %p %</translation>
    </message>
    <message>
        <source>Phasors: %p%</source>
        <translation>Osoittimet: %p %</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>jäljellä noin %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>jäljellä noin %1 min</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Lataus</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Keskeytä</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Keskeytä lataus</translation>
    </message>
    <message>
        <source>Stop loading (Esc)</source>
        <translation>Keskeytä lataus (Esc)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Device Information</source>
        <translation>Laitteen tiedot</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Sijainti:</translation>
    </message>
    <message>
        <source>Start Date:</source>
        <translation>Alkupäivä:</translation>
    </message>
    <message>
        <source>Start Time:</source>
        <translation>Alkuaika:</translation>
    </message>
    <message>
        <source>Convert To Localtime</source>
        <translation>Muunna paikallisajaksi</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Laite:</translation>
    </message>
    <message>
        <source>Trigger Date:</source>
        <translation>Liipaisupäivä:</translation>
    </message>
    <message>
        <source>Trigger Time:</source>
        <translation>Liipaisuaika:</translation>
    </message>
    <message>
        <source>Analog Channels:</source>
        <translation>Analogikanavat:</translation>
    </message>
    <message>
        <source>Digital Channels:</source>
        <translation>Digitaalikanavat:</translation>
    </message>
    <message>
        <source>Created by </source>
        <translation>Tekijä: </translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Avaa...</translation>
    </message>
    <message>
        <source>Open an existing file.</source>
        <translation>Avaa olemassa oleva häiriötallenne.</translation>
    </message>
    <message>
        <source>&amp;Save As..</source>
        <translation>&amp;Tallenna nimellä..</translation>
    </message>
    <message>
        <source>Save recording to file.</source>
        <translation>Tallenna häiriötallenne tiedostoon.</translation>
    </message>
    <message>
        <source>Save As &amp;Primary</source>
        <translation>Tallenna &amp;ensiöarvoina</translation>
    </message>
    <message>
        <source>Save as a primary type.</source>
        <translation>Tallenna häiriötallenne ensiöarvoina.</translation>
    </message>
    <message>
        <source>&amp;Add Plotter</source>
        <translation>&amp;Lisää kuvaaja</translation>
    </message>
    <message>
        <source>Add analog plotter.</source>
        <translation>Lisää analogiakuvaaja.</translation>
    </message>
    <message>
        <source>&amp;Remove Plotter</source>
        <translation>&amp;Poista kuvaaja</translation>
    </message>
    <message>
        <source>Remoe analog plotter.</source>
        <translation>Poista analogiakuvaaja.</translation>
    </message>
    <message>
        <source>&amp;Remove All Cursors</source>
        <translation>Poista kaikki &amp;kursorit</translation>
    </message>
    <message>
        <source>Remove all cursors.</source>
        <translation>Poista kaikki kursorit.</translation>
    </message>
    <message>
        <source>&amp;Show Vectors</source>
        <translation>Näytä &amp;osoittimet</translation>
    </message>
    <message>
        <source>Show vectors dialog.</source>
        <translation>Näytä osoitinikkuna.</translation>
    </message>
    <message>
        <source>Rescale CTVT</source>
        <translation>Muuta muuntosuhteita</translation>
    </message>
    <message>
        <source>Set CTVT ratios.</source>
        <translation>Aseta virta- ja jännitemuuntajien muuntosuhteet.</translation>
    </message>
    <message>
        <source>&amp;Save screenshot</source>
        <translation>&amp;Tallenna kuvakaappaus</translation>
    </message>
    <message>
        <source>Save screenshot.</source>
        <translation>Tallenna kuvakaappaus.</translation>
    </message>
    <message>
        <source>&amp;Copy to clipboard</source>
        <translation>&amp;Kopioi leikepöydälle</translation>
    </message>
    <message>
        <source>Copy to clipboard.</source>
        <translation>Kopioi leikepöydälle.</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Lähennä</translation>
    </message>
    <message>
        <source>Zoom in.</source>
        <translation>Lähennä.</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Loitonna</translation>
    </message>
    <message>
        <source>Zoom out.</source>
        <translation>Loitonna.</translation>
    </message>
    <message>
        <source>Zoom Reset</source>
        <translation>Palauta zoomaus</translation>
    </message>
    <message>
        <source>Zoom reset.</source>
        <translation>Palauta zoomaus.</translation>
    </message>
    <message>
        <source>Vertical Zoom In</source>
        <translation>Lähennä pystysuunnassa</translation>
    </message>
    <message>
        <source>Vertical zoom in.</source>
        <translation>Lähennä pystysuunnassa.</translation>
    </message>
    <message>
        <source>Vertical Zoom Out</source>
        <translation>Loitonna pystysuunnassa</translation>
    </message>
    <message>
        <source>Vertical zoom out.</source>
        <translation>Loitonna pystysuunnassa.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Lopeta</translation>
    </message>
    <message>
        <source>Exit the application.</source>
        <translation>Lopeta ohjelma.</translation>
    </message>
    <message>
        <source>&amp;About Wavorin</source>
        <translation>&amp;Tietoja Wavorinista</translation>
    </message>
    <message>
        <source>About Wavorin</source>
        <translation>Tietoja Wavorinista</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Muokkaa</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Työkalut</translation>
    </message>
    <message>
        <source>FFT</source>
        <translation>FFT</translation>
    </message>
    <message>
        <source>Prim/Sec</source>
        <translation>Ensiö/toisio</translation>
    </message>
    <message>
        <source>Primary/Secondary:</source>
        <translation>Ensiö/toisio:</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tiedosto</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Muokkaa</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>T&amp;yökalut</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ohje</translation>
    </message>
    <message>
        <source>Show FFT Angles</source>
        <translation>Näytä FFT-kulmat</translation>
    </message>
    <message>
        <source>Reference channel of the FFT angles</source>
        <translation>FFT-kulmien vertailukanava</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Kieli</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Avaa tiedosto</translation>
    </message>
    <message>
        <source>DR-files (*.zip *.cfg *.txt)</source>
        <translation>Häiriötallenteet (*.zip *.cfg *.txt)</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Tiedostoa %1 ei voi lukea:
%2.</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Kyseessä on putki tai laite</translation>
    </message>
    <message>
        <source>File not supported.</source>
        <translation>Tiedostoa ei tueta.</translation>
    </message>
    <message>
        <source>File loaded</source>
        <translation>Tiedosto ladattu</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Sovellus</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message>
        <source>The zip file is not valid.
Please select another file.</source>
        <translation>Zip-tiedosto ei kelpaa.
Valitse toinen tiedosto.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Tallenna nimellä</translation>
    </message>
    <message>
        <source>%1 Files (*.%2);;All Files (*)</source>
        <translation>%1-tiedostot (*.%2);;Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>File saved.</source>
        <translation>Tiedosto tallennettu.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Tiedostoa %1 ei voi kirjoittaa:
%2.</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>Tallenna häiriötallenne</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analogia</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Digitaali</translation>
    </message>
    <message>
        <source>P</source>
        <translation>Ensiö</translation>
    </message>
    <message>
        <source>S</source>
        <translation>Toisio</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>p.u.</translation>
    </message>
    <message>
        <source>Graph %1</source>
        <translation>Kuvaaja %1</translation>
    </message>
    <message>
        <source>Start: %1    Trigger: %2</source>
        <translation>Alku: %1    Liipaisu: %2</translation>
    </message>
    <message>
        <source>Draw the angles of spectrum traces, too</source>
        <translation>Piirrä myös spektrikäyrien kulmat</translation>
    </message>
    <message>
        <source>Values of the primary or the secondary side, or per unit</source>
        <translation>Ensiö- tai toisiopuolen arvot tai suhteellisarvot</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as month/day/year and time of day</source>
        <translation>%1 %2 ei ole muotoa kuukausi/päivä/vuosi ja kellonaika</translation>
    </message>
    <message>
        <source>%1 %2 cannot be read as day/month/year and time of day</source>
        <translation>%1 %2 ei ole muotoa päivä/kuukausi/vuosi ja kellonaika</translation>
    </message>
    <message>
        <source>There is no data file %1.</source>
        <translation>Datatiedostoa %1 ei ole.</translation>
    </message>
    <message>
        <source>The data file %1 cannot be read.</source>
        <translation>Datatiedostoa %1 ei voi lukea.</translation>
    </message>
    <message>
        <source>Its data are not ASCII.</source>
        <translation>Sen data ei ole ASCII-muodossa.</translation>
    </message>
    <message>
        <source>Its data file holds no sample.</source>
        <translation>Sen datatiedostossa ei ole yhtään näytettä.</translation>
    </message>
    <message>
        <source>A file of it cannot be read to its end.</source>
        <translation>Jotakin sen tiedostoa ei voi lukea loppuun.</translation>
    </message>
    <message>
        <source>There is too little memory for it.</source>
        <translation>Muisti ei riitä siihen.</translation>
    </message>
    <message>
        <source>wavorin-convert may turn it into a recording that opens.</source>
        <translation>wavorin-convert voi ehkä muuntaa sen häiriötallenteeksi, joka avautuu.</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture with Heading</source>
        <translation>Ko&amp;pioi kuva otsikoineen</translation>
    </message>
    <message>
        <source>&amp;Save Picture with Heading...</source>
        <translation>Talle&amp;nna kuva otsikoineen...</translation>
    </message>
    <message>
        <source>Save P%1 to P%2...</source>
        <translation>Tallenna väli P%1–P%2...</translation>
    </message>
    <message>
        <source>Plots &amp;by Unit</source>
        <translation>Kuvaa&amp;jat yksiköittäin</translation>
    </message>
    <message>
        <source>Currents FFT</source>
        <translation>Virrat FFT</translation>
    </message>
    <message>
        <source>Voltages FFT</source>
        <translation>Jännitteet FFT</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Kuvaajat</translation>
    </message>
    <message>
        <source>Time in view</source>
        <translation>Näkyvä aika</translation>
    </message>
</context>
<context>
    <name>MeasurementsDialog</name>
    <message>
        <source>Measurements</source>
        <translation>Mittaukset</translation>
    </message>
    <message>
        <source>The fundamental over the cycle around the cursor</source>
        <translation>Perusaalto kursorin ympärillä olevan jakson ajalta</translation>
    </message>
    <message>
        <source>RMS of &amp;fundamental</source>
        <translation>&amp;Perusaallon tehollisarvo</translation>
    </message>
    <message>
        <source>Positive where the channel leads the reference</source>
        <translation>Positiivinen, kun kanava on vertailukanavaa edellä</translation>
    </message>
    <message>
        <source>&amp;Angle</source>
        <translation>&amp;Kulma</translation>
    </message>
    <message>
        <source>With harmonics and DC, over the cycle before the cursor</source>
        <translation>Yliaallot ja tasakomponentti mukaan lukien, kursoria edeltävän jakson ajalta</translation>
    </message>
    <message>
        <source>&amp;True RMS</source>
        <translation>&amp;Todellinen tehollisarvo</translation>
    </message>
    <message>
        <source>The largest absolute value in the cycle before the cursor</source>
        <translation>Suurin itseisarvo kursoria edeltävän jakson aikana</translation>
    </message>
    <message>
        <source>&amp;Peak</source>
        <translation>&amp;Huippuarvo</translation>
    </message>
    <message>
        <source>&amp;Reference:</source>
        <translation>&amp;Vertailu:</translation>
    </message>
    <message>
        <source>Reference channel of the angles</source>
        <translation>Kulmien vertailukanava</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>Kursorit</translation>
    </message>
    <message>
        <source>Values at the cursors</source>
        <translation>Arvot kursoreiden kohdalla</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Erot</translation>
    </message>
    <message>
        <source>Fro&amp;m:</source>
        <translation>&amp;Mistä:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>M&amp;ihin:</translation>
    </message>
    <message>
        <source>Differences between two cursors</source>
        <translation>Kahden kursorin väliset erot</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>Symmetriset komponentit</translation>
    </message>
    <message>
        <source>Phase &amp;1:</source>
        <translation>Vaihe &amp;1:</translation>
    </message>
    <message>
        <source>Phase &amp;2:</source>
        <translation>Vaihe &amp;2:</translation>
    </message>
    <message>
        <source>Phase &amp;3:</source>
        <translation>Vaihe &amp;3:</translation>
    </message>
    <message>
        <source>Sequence components at the cursors</source>
        <translation>Symmetriset komponentit kursoreiden kohdalla</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Yliaallot</translation>
    </message>
    <message>
        <source>C&amp;hannel:</source>
        <translation>Ka&amp;nava:</translation>
    </message>
    <message>
        <source>C&amp;ursor:</source>
        <translation>K&amp;ursori:</translation>
    </message>
    <message>
        <source>Harmonics as bars</source>
        <translation>Yliaallot pylväinä</translation>
    </message>
    <message>
        <source>Harmonics of the cycle around the cursor</source>
        <translation>Kursorin ympärillä olevan jakson yliaallot</translation>
    </message>
    <message>
        <source>Copy the table that is shown, with tabs between the columns</source>
        <translation>Kopioi näkyvä taulukko sarkaimin eroteltuna</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>K&amp;opioi taulukko</translation>
    </message>
    <message>
        <source>Save the table that is shown, with commas between the columns</source>
        <translation>Tallenna näkyvä taulukko pilkuin eroteltuna</translation>
    </message>
    <message>
        <source>&amp;Save as CSV...</source>
        <translation>Tallenna &amp;CSV-tiedostoon...</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>secondary</source>
        <translation>toisio</translation>
    </message>
    <message>
        <source>primary</source>
        <translation>ensiö</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = tiedoston arvo x nimellisarvo</translation>
    </message>
    <message>
        <source>P = file value x rating</source>
        <translation>P = tiedoston arvo x nimellisarvo</translation>
    </message>
    <message>
        <source>There is no cursor.</source>
        <translation>Kursoria ei ole.</translation>
    </message>
    <message>
        <source>No whole cycle of this channel lies around the cursor.</source>
        <translation>Kursorin ympärillä ei ole tämän kanavan kokonaista jaksoa.</translation>
    </message>
    <message>
        <source>Measurements: %1</source>
        <translation>Mittaukset: %1</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Tallenna CSV-tiedostoon</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-tiedostot (*.csv)</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>Kyseessä on putki tai laite</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Arvo</translation>
    </message>
    <message>
        <source>RMS of fundamental</source>
        <translation>Perusaallon tehollisarvo</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Kulma</translation>
    </message>
    <message>
        <source>True RMS</source>
        <translation>Todellinen tehollisarvo</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Huippuarvo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanava</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Suure</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Yksikkö</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Ero</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Pienin</translation>
    </message>
    <message>
        <source>at (ms)</source>
        <translation>hetki (ms)</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Suurin</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>cycles</source>
        <translation>jaksoa</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponentti</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>Tehollisarvo</translation>
    </message>
    <message>
        <source>Positive sequence</source>
        <translation>Myötäkomponentti</translation>
    </message>
    <message>
        <source>Negative sequence</source>
        <translation>Vastakomponentti</translation>
    </message>
    <message>
        <source>Zero sequence</source>
        <translation>Nollakomponentti</translation>
    </message>
    <message>
        <source>Harmonic</source>
        <translation>Yliaalto</translation>
    </message>
    <message>
        <source>RMS, %1</source>
        <translation>Tehollisarvo, %1</translation>
    </message>
    <message>
        <source>% of fundamental</source>
        <translation>% perusaallosta</translation>
    </message>
</context>
<context>
    <name>NamesMenu</name>
    <message>
        <source>Names &amp;As</source>
        <translation>Nimien &amp;merkistö</translation>
    </message>
    <message>
        <source>As Read</source>
        <translation>Kuten luettu</translation>
    </message>
    <message>
        <source>The names seem to be in %1</source>
        <translation>Nimet näyttävät olevan merkistössä %1</translation>
    </message>
</context>
<context>
    <name>NoteSign</name>
    <message>
        <source>Notes: %1</source>
        <translation>Huomautuksia: %1</translation>
    </message>
    <message>
        <source>What was noticed while the recording was read. Notes: %1</source>
        <translation>Tallenteen lukemisessa huomattua. Huomautuksia: %1</translation>
    </message>
</context>
<context>
    <name>NoteTable</name>
    <message>
        <source>Note</source>
        <translation>Huomautus</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Rivi</translation>
    </message>
    <message>
        <source>How Many</source>
        <translation>Lukumäärä</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datatiedosto</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Määrittelytiedosto</translation>
    </message>
    <message>
        <source>Written by the revision of %1, read by the rules of 1999</source>
        <translation>Kirjoitettu vuoden %1 version mukaan, luettu vuoden 1999 sääntöjen mukaan</translation>
    </message>
    <message>
        <source>The total of %1 channels is not the sum of analog and digital ones, %2</source>
        <translation>Kanavien kokonaismäärä %1 ei ole analogisten ja digitaalisten summa %2</translation>
    </message>
    <message>
        <source>No sampling rates announced; where a rate line follows, it is read as the start</source>
        <translation>Näytteenottotaajuuksia ei ilmoitettu; jos taajuusrivi seuraa, se luetaan alkuna</translation>
    </message>
    <message>
        <source>Several lines of sampling rates; the last one, %1 Hz, is taken for all</source>
        <translation>Useita näytteenottotaajuuden rivejä; viimeistä, %1 Hz, käytetään kaikille</translation>
    </message>
    <message>
        <source>Start and trigger lie on two days; the trigger is placed by time of day alone</source>
        <translation>Alku ja liipaisu ovat eri päivinä; liipaisu sijoitetaan pelkän kellonajan mukaan</translation>
    </message>
    <message>
        <source>Data of type %1, read as ASCII</source>
        <translation>Datan tyyppi on %1, luettu ASCII-muotoisena</translation>
    </message>
    <message>
        <source>The names seem to be in %1; see Names As in the menu of the plots</source>
        <translation>Nimien merkistö näyttää olevan %1; valitse se kuvaajien valikosta</translation>
    </message>
    <message>
        <source>Fewer samples than the last rate line promises: %1 of %2</source>
        <translation>Näytteitä vähemmän kuin viimeinen taajuusrivi lupaa: %1 / %2</translation>
    </message>
    <message>
        <source>More samples than the last rate line promises: %1 instead of %2</source>
        <translation>Näytteitä enemmän kuin viimeinen taajuusrivi lupaa: %1, luvattu %2</translation>
    </message>
    <message>
        <source>A blank or short line ended the reading before the end of the file</source>
        <translation>Tyhjä tai lyhyt rivi päätti lukemisen ennen tiedoston loppua</translation>
    </message>
    <message>
        <source>Too long a line, or too many samples for the file: not read from here on</source>
        <translation>Liian pitkä rivi tai tiedostoon nähden liikaa näytteitä: tästä eteenpäin ei luettu</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too few</source>
        <translation>Liian vähän tai liikaa kenttiä; ensimmäisellä tällaisella rivillä %1 liian vähän</translation>
    </message>
    <message>
        <source>Too few or too many fields; in the first such line %1 too many</source>
        <translation>Liian vähän tai liikaa kenttiä; ensimmäisellä tällaisella rivillä %1 liikaa</translation>
    </message>
    <message>
        <source>All time stamps are the same: %1 ms</source>
        <translation>Kaikki aikaleimat ovat samoja: %1 ms</translation>
    </message>
    <message>
        <source>Time jumps ahead by %1 ms, at most by %2 ms</source>
        <translation>Aika hyppää eteenpäin %1 ms, enintään %2 ms</translation>
    </message>
    <message>
        <source>Time steps back by %1 ms, at most by %2 ms</source>
        <translation>Aika palaa taaksepäin %1 ms, enintään %2 ms</translation>
    </message>
    <message>
        <source>%1: marks of missing values, read as numbers</source>
        <translation>%1: puuttuvien arvojen merkkejä, luettu lukuina</translation>
    </message>
</context>
<context>
    <name>NotesDialog</name>
    <message>
        <source>Notes on the Recording</source>
        <translation>Huomautukset tallenteesta</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Huomautukset</translation>
    </message>
    <message>
        <source>Copy all rows, with tabs between the columns</source>
        <translation>Kopioi kaikki rivit sarkaimin eroteltuina</translation>
    </message>
    <message>
        <source>&amp;Copy Table</source>
        <translation>K&amp;opioi taulukko</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
</context>
<context>
    <name>OpenHint</name>
    <message>
        <source>Open a recording: File &gt; Open... (Ctrl+O), or drop a .cfg, .zip or .txt file here.</source>
        <translation>Avaa häiriötallenne: Tiedosto &gt; Avaa... (Ctrl+O), tai pudota .cfg-, .zip- tai .txt-tiedosto tähän.</translation>
    </message>
    <message>
        <source>Recent recordings:</source>
        <translation>Viimeksi avatut tallenteet:</translation>
    </message>
</context>
<context>
    <name>OtherRecordings</name>
    <message>
        <source>Open &amp;Next in Folder</source>
        <translation>Avaa kansion &amp;seuraava</translation>
    </message>
    <message>
        <source>Open &amp;Previous in Folder</source>
        <translation>Avaa kansion &amp;edellinen</translation>
    </message>
    <message>
        <source>&amp;Recent Recordings</source>
        <translation>&amp;Viimeksi avatut tallenteet</translation>
    </message>
</context>
<context>
    <name>PlotMenu</name>
    <message>
        <source>&amp;Earlier</source>
        <translation>&amp;Aiemmin</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>My&amp;öhemmin</translation>
    </message>
    <message>
        <source>Previous Vie&amp;w</source>
        <translation>E&amp;dellinen näkymä</translation>
    </message>
    <message>
        <source>Whole Recording</source>
        <translation>Koko tallenne</translation>
    </message>
    <message>
        <source>&amp;Zoom to P%1-P%2</source>
        <translation>&amp;Zoomaa välille P%1–P%2</translation>
    </message>
    <message>
        <source>Cursor Here</source>
        <translation>Kursori tähän</translation>
    </message>
    <message>
        <source>Cursor at Tri&amp;gger</source>
        <translation>Kursori &amp;liipaisuhetkeen</translation>
    </message>
    <message>
        <source>Cursor at &amp;Time...</source>
        <translation>Kursori a&amp;ikaan...</translation>
    </message>
    <message>
        <source>New Cursor</source>
        <translation>Uusi kursori</translation>
    </message>
    <message>
        <source>Time in ms, or time of day (hh:mm:ss.zzz):</source>
        <translation>Aika (ms) tai kellonaika (hh:mm:ss.zzz):</translation>
    </message>
    <message>
        <source>Cursor at Previous &amp;Change</source>
        <translation>Kursori edelliseen tilanvai&amp;htoon</translation>
    </message>
    <message>
        <source>Cursor at Ne&amp;xt Change</source>
        <translation>Kursori seu&amp;raavaan tilanvaihtoon</translation>
    </message>
    <message>
        <source>Cursor at &amp;Maximum in View</source>
        <translation>Kursori näkymän ma&amp;ksimiin</translation>
    </message>
    <message>
        <source>Cursor at M&amp;inimum in View</source>
        <translation>Kursori näk&amp;ymän minimiin</translation>
    </message>
    <message>
        <source>E&amp;dit Title</source>
        <translation>Muokkaa &amp;otsikkoa</translation>
    </message>
    <message>
        <source>Channel C&amp;olor</source>
        <translation>Kanavan v&amp;äri</translation>
    </message>
    <message>
        <source>&amp;Move to Time...</source>
        <translation>Siirrä &amp;aikaan...</translation>
    </message>
    <message>
        <source>Move Cursor</source>
        <translation>Siirrä kursori</translation>
    </message>
    <message>
        <source>Step to &amp;Previous Sample</source>
        <translation>Siirrä &amp;edelliseen näytteeseen</translation>
    </message>
    <message>
        <source>Step to &amp;Next Sample</source>
        <translation>Siirrä &amp;seuraavaan näytteeseen</translation>
    </message>
</context>
<context>
    <name>Plotter</name>
    <message>
        <source>Trigger: %1 ms</source>
        <translation>Liipaisu: %1 ms</translation>
    </message>
    <message>
        <source>%1 Plotter</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Suure</translation>
    </message>
    <message>
        <source>Remove Cursor</source>
        <translation>Poista kursori</translation>
    </message>
    <message>
        <source>Remove All Cursors</source>
        <translation>Poista kaikki kursorit</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>V&amp;alitse kaikki</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Suurenna</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Pienennä</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Valitse väri</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>&amp;Perusvärit</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Omat värit</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>&amp;Lisää omiin väreihin</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>Poimi väri &amp;näytöltä</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Kursori kohdassa %1, %2
Peruuta painamalla Esc</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>Säv&amp;y:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Kylläisyys:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>K&amp;irkkaus:</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>P&amp;unainen:</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Vihreä:</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>&amp;Sininen:</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>Al&amp;fakanava:</translation>
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
        <translation>&amp;Avaa</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Tallenna</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Valitse</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Tiedoston &amp;nimi:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Tiedostotyyppi:</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Kansio:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Kansio:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Kaikki tiedostot (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Siirry takaisin</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Eteenpäin</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Siirry eteenpäin</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Yläkansio</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Siirry yläkansioon</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Luo uusi kansio</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Luo uusi kansio</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Uusi kansio</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Luettelonäkymä</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Vaihda luettelonäkymään</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Yksityiskohtanäkymä</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Vaihda yksityiskohtanäkymään</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Sivupalkki</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Sijaintien ja kirjanmerkkien luettelo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Tiedostot</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Viimeisimmät sijainnit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Näytä </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Nimeä &amp;uudelleen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Poista</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Näytä piilo&amp;tiedostot</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Uusi &amp;kansio</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Asema</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Kansio</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-tiedosto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Tuntematon</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Haluatko varmasti poistaa kohteen ”%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>”%1” on kirjoitussuojattu.
Poistetaanko se silti?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Kansiota ei voi poistaa.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Tiedostoa ei löydy.
Tarkista tiedoston nimi.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Kansiota ei löydy.
Tarkista kansion nimi.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 on jo olemassa.
Korvataanko se?</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Koko</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Muokattu</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Tietokone</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Oma tietokone</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Virheellinen tiedostonimi</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Nimeä ”%1” ei voi käyttää.&lt;/b&gt;&lt;p&gt;Kokeile toista nimeä, jossa on vähemmän merkkejä tai ei välimerkkejä.</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>Käyttöoikeus puuttuu</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Liian monta avointa tiedostoa</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Tiedostoa tai kansiota ei ole</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Levytila on lopussa</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>kohde on kansio</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Tuntematon virhe</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Toiminto ei ole sallittu</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Luku- tai kirjoitusvirhe</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Laite tai resurssi on varattu</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Polun osa ei ole kansio</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Kohde on kansio</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Tiedostoa suoritetaan ohjelmana</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Tiedosto on liian suuri</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Tiedostojärjestelmään ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Tiedostonimi on liian pitkä</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Liian monta peräkkäistä symbolista linkkiä</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Tiedosto ei ole enää palvelimella</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Levykiintiö on täynnä</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Tee uudelleen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Leikkaa</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>L&amp;iitä</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
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
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Kyllä</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ei</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Tiedostoon %1 ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Tiedostonimi viittaa kansioon</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Vieritä tähän</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vasen reuna</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Oikea reuna</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Alkuun</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Loppuun</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sivu vasemmalle</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sivu oikealle</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sivu ylös</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sivu alas</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Vieritä vasemmalle</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Vieritä oikealle</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Vieritä ylös</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Vieritä alas</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Tee uudelleen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Leikkaa</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopioi li&amp;nkin osoite</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>L&amp;iitä</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
    </message>
</context>
<context>
    <name>ReportPicture</name>
    <message>
        <source>Start: %1 %2</source>
        <translation>Alku: %1 %2</translation>
    </message>
    <message>
        <source>Trigger at %1 ms</source>
        <translation>Liipaisu kohdassa %1 ms</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Kursori</translation>
    </message>
    <message>
        <source>Time (ms)</source>
        <translation>Aika (ms)</translation>
    </message>
    <message>
        <source>Clock Time</source>
        <translation>Kellonaika</translation>
    </message>
    <message>
        <source>From Trigger (ms)</source>
        <translation>Liipaisusta (ms)</translation>
    </message>
    <message>
        <source>From Cursor Before (ms)</source>
        <translation>Edellisestä kursorista (ms)</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save File</source>
        <translation>Tallenna tiedosto</translation>
    </message>
    <message>
        <source>File path:</source>
        <translation>Tiedostopolku:</translation>
    </message>
    <message>
        <source>*File aready exists</source>
        <translation>*Tiedosto on jo olemassa</translation>
    </message>
    <message>
        <source>Recording start point (ms):</source>
        <translation>Tallenteen alkukohta (ms):</translation>
    </message>
    <message>
        <source>Recording end point (ms):</source>
        <translation>Tallenteen loppukohta (ms):</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Save recording</source>
        <translation>Tallenna häiriötallenne</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Tallenna tiedosto</translation>
    </message>
    <message>
        <source>File already exists. Are you sure you want to overwrite it?</source>
        <translation>Tiedosto on jo olemassa. Haluatko varmasti korvata sen?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Valitse tiedosto</translation>
    </message>
    <message>
        <source>There is no such folder</source>
        <translation>Tätä kansiota ei ole</translation>
    </message>
    <message>
        <source>The file that is there may not be replaced</source>
        <translation>Olemassa olevaa tiedostoa ei saa korvata</translation>
    </message>
    <message>
        <source>The folder may not be written to</source>
        <translation>Kansioon ei saa kirjoittaa</translation>
    </message>
</context>
<context>
    <name>SideWindows</name>
    <message>
        <source>E&amp;vents...</source>
        <translation>&amp;Tapahtumat...</translation>
    </message>
    <message>
        <source>Meas&amp;urements...</source>
        <translation>Mitta&amp;ukset...</translation>
    </message>
    <message>
        <source>Notes...</source>
        <translation>Huomautukset...</translation>
    </message>
</context>
<context>
    <name>StatusField</name>
    <message>
        <source>P = file value x rating</source>
        <translation>P = tiedoston arvo x nimellisarvo</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Ensiö</translation>
    </message>
    <message>
        <source>S = file value x rating</source>
        <translation>S = tiedoston arvo x nimellisarvo</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Toisio</translation>
    </message>
    <message>
        <source>Per Unit</source>
        <translation>Suhteellisarvo</translation>
    </message>
    <message>
        <source>from trigger: %1 ms</source>
        <translation>liipaisusta: %1 ms</translation>
    </message>
    <message>
        <source>%1 was not opened: the name does not end with .cfg or .zip</source>
        <translation>Tiedostoa %1 ei avattu: nimen lopussa ei ole .cfg eikä .zip</translation>
    </message>
    <message>
        <source>%1 was not opened: wavorin-convert turns .cff files into recordings that open</source>
        <translation>Tiedostoa %1 ei avattu: wavorin-convert muuntaa .cff-tiedostot häiriötallenteiksi, jotka avautuvat</translation>
    </message>
</context>
<context>
    <name>VectorDialog</name>
    <message>
        <source>Vectors</source>
        <translation>Osoittimet</translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Vertailukanava: </translation>
    </message>
    <message>
        <source>Add a diagram</source>
        <translation>Lisää osoitinpiirros</translation>
    </message>
</context>
<context>
    <name>VectorWidget</name>
    <message>
        <source>Remove this diagram</source>
        <translation>Poista tämä osoitinpiirros</translation>
    </message>
    <message>
        <source>Measurements...</source>
        <translation>Mittaukset...</translation>
    </message>
    <message>
        <source>Color...</source>
        <translation>Väri...</translation>
    </message>
    <message>
        <source>%1 at P%2</source>
        <translation>%1 kohdassa P%2</translation>
    </message>
    <message>
        <source>RMS: %1</source>
        <translation>Tehollisarvo: %1</translation>
    </message>
    <message>
        <source>Angle to %1: %2°</source>
        <translation>Kulma kanavaan %1: %2°</translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation>Kulma: %1°</translation>
    </message>
    <message>
        <source>Phasor diagram</source>
        <translation>Osoitinpiirros</translation>
    </message>
    <message>
        <source>RMS values</source>
        <translation>Tehollisarvot</translation>
    </message>
</context>
<context>
    <name>plotterDg</name>
    <message>
        <source>%1 at %2 ms</source>
        <translation>%1 hetkellä %2 ms</translation>
    </message>
</context>
</TS>
