<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="128">
        <source>Ruleward Builder</source>
        <extracomment>Title: title of the main window.</extracomment>
        <translation>Ruleward Builder</translation>
    </message>
    <message id="129">
        <source>&#10;Standard&#10;Standard&#10;Ruleward Standards (*.kvstd)&#10;.kvstd&#10;RulewardBuilder&#10;Ruleward Standard</source>
        <extracomment>Title: seven fields with a line break between each two: window title (empty), document name, name of a new document, file filter name, file extension, file type key, file type name. Keep the count of line breaks, ".kvstd" and "RulewardBuilder"; translate the rest.</extracomment>
        <translation>&#10;Standard&#10;Standard&#10;Ruleward Standards (*.kvstd)&#10;.kvstd&#10;RulewardBuilder&#10;Ruleward Standard</translation>
    </message>
    <message id="130">
        <source>File Name</source>
        <extracomment>Heading: first column of the lists of bend table and sheet format files.</extracomment>
        <translation>File Name</translation>
    </message>
    <message id="131">
        <source>Path</source>
        <extracomment>Heading: second column of the lists of bend table and sheet format files; the full path.</extracomment>
        <translation>Path</translation>
    </message>
    <message id="132">
        <source>Macro</source>
        <extracomment>Parameter label: check type 121. Must differ from the other labels of the type. Also a column heading of the custom check grid.</extracomment>
        <translation>Macro</translation>
    </message>
    <message id="133">
        <source>Module</source>
        <extracomment>Parameter label: check type 121. Must differ from the other labels of the type. Texts 133 and 134 together head the procedure column of the custom check grid.</extracomment>
        <translation>Module</translation>
    </message>
    <message id="134">
        <source>Procedure</source>
        <extracomment>Parameter label: check type 121. Must differ from the other labels of the type. Texts 133 and 134 together head the procedure column of the custom check grid.</extracomment>
        <translation>Procedure</translation>
    </message>
    <message id="135">
        <source>Check Name</source>
        <extracomment>Parameter label: check type 121. Must differ from the other labels of the type.</extracomment>
        <translation>Check Name</translation>
    </message>
    <message id="138">
        <source>Document Type</source>
        <extracomment>Parameter label: check type 121. Must differ from the other labels of the type. Also a column heading of the custom check grid.</extracomment>
        <translation>Document Type</translation>
    </message>
    <message id="139">
        <source>Virtual Sharps</source>
        <extracomment>Check name: check type 123; also the caption of its pane.</extracomment>
        <translation>Virtual Sharps</translation>
    </message>
    <message id="140">
        <source>Virtual Sharp Style</source>
        <extracomment>Parameter label: check type 123. Must differ from the other labels of the type.</extracomment>
        <translation>Virtual Sharp Style</translation>
    </message>
    <message id="1221">
        <source>Virtual Sharps</source>
        <extracomment>Button text: catalogue button of check type 123.</extracomment>
        <translation>Virtual Sharps</translation>
    </message>
    <message id="1330">
        <source>Angular - Solid Leader with Aligned Text</source>
        <extracomment>Option: one of the angular dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Angular - Solid Leader with Aligned Text</translation>
    </message>
    <message id="1331">
        <source>Angular - Broken Leader with Horizontal Text</source>
        <extracomment>Option: one of the angular dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Angular - Broken Leader with Horizontal Text</translation>
    </message>
    <message id="1332">
        <source>Angular - Broken Leader with Aligned Text</source>
        <extracomment>Option: one of the angular dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Angular - Broken Leader with Aligned Text</translation>
    </message>
    <message id="1333">
        <source>Radial - Solid Leader with Aligned Text</source>
        <extracomment>Option: one of the radial dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Radial - Solid Leader with Aligned Text</translation>
    </message>
    <message id="1334">
        <source>Radial - Broken Leader with Horizontal Text</source>
        <extracomment>Option: one of the radial dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Radial - Broken Leader with Horizontal Text</translation>
    </message>
    <message id="1335">
        <source>Radial - Broken Leader with Aligned Text</source>
        <extracomment>Option: one of the radial dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Radial - Broken Leader with Aligned Text</translation>
    </message>
    <message id="1336">
        <source>Chamfer - Horizontal Text</source>
        <extracomment>Option: one of the chamfer dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Chamfer - Horizontal Text</translation>
    </message>
    <message id="1337">
        <source>Chamfer - Underlined Horizontal Text</source>
        <extracomment>Option: one of the chamfer dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Chamfer - Underlined Horizontal Text</translation>
    </message>
    <message id="1338">
        <source>Chamfer - Angled Text</source>
        <extracomment>Option: one of the chamfer dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Chamfer - Angled Text</translation>
    </message>
    <message id="1339">
        <source>Chamfer - Underlined Angled Text</source>
        <extracomment>Option: one of the chamfer dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Chamfer - Underlined Angled Text</translation>
    </message>
    <message id="1340">
        <source>Linear - Solid Leader with Aligned Text</source>
        <extracomment>Option: one of the linear dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Linear - Solid Leader with Aligned Text</translation>
    </message>
    <message id="1341">
        <source>Linear - Broken Leader with Horizontal Text</source>
        <extracomment>Option: one of the linear dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Linear - Broken Leader with Horizontal Text</translation>
    </message>
    <message id="1342">
        <source>Linear - Broken Leader with Aligned Text</source>
        <extracomment>Option: one of the linear dimension texts. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Linear - Broken Leader with Aligned Text</translation>
    </message>
    <message id="1343">
        <source>Learn from Document</source>
        <extracomment>Title: open dialog of the learn command.</extracomment>
        <translation>Learn from Document</translation>
    </message>
    <message id="1344">
        <source>Add bend tables</source>
        <extracomment>Tooltip: add button of the bend table pane.</extracomment>
        <translation>Add bend tables</translation>
    </message>
    <message id="1514">
        <source>Ruleward Builder cannot start because the automation services of the system are not available. Sign out, sign in again, and retry.</source>
        <extracomment>Message: start-up fails because the desktop's automation services cannot be reached.</extracomment>
        <translation>Ruleward Builder cannot start because the automation services of the system are not available. Sign out, sign in again, and retry.</translation>
    </message>
    <message id="1552">
        <source>Dimension Arrow Height</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Dimension Arrow Height</translation>
    </message>
    <message id="1553">
        <source>Dimension Arrow Width</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Dimension Arrow Width</translation>
    </message>
    <message id="1554">
        <source>Dimension Arrow Length</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Dimension Arrow Length</translation>
    </message>
    <message id="1555">
        <source>Section Arrow Height</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Section Arrow Height</translation>
    </message>
    <message id="1556">
        <source>Section Arrow Width</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Section Arrow Width</translation>
    </message>
    <message id="1557">
        <source>Section Arrow Length</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Section Arrow Length</translation>
    </message>
    <message id="1558">
        <source>Arrowhead at Edge or Vertex</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Arrowhead at Edge or Vertex</translation>
    </message>
    <message id="1559">
        <source>Arrowhead at Face</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Arrowhead at Face</translation>
    </message>
    <message id="1560">
        <source>Unattached Arrowhead</source>
        <extracomment>Parameter label: check type 102. Must differ from the other labels of the type.</extracomment>
        <translation>Unattached Arrowhead</translation>
    </message>
    <message id="1561">
        <source>First Arrowhead Style</source>
        <extracomment>Parameter label: check type 402. Must differ from the other labels of the type.</extracomment>
        <translation>First Arrowhead Style</translation>
    </message>
    <message id="1562">
        <source>Second Arrowhead Style</source>
        <extracomment>Parameter label: check type 402. Must differ from the other labels of the type.</extracomment>
        <translation>Second Arrowhead Style</translation>
    </message>
    <message id="1563">
        <source>Layer Name</source>
        <extracomment>Parameter label: check types 304 to 306. Must differ from the other labels of the type.</extracomment>
        <translation>Layer Name</translation>
    </message>
    <message id="1564">
        <source>Layer Color</source>
        <extracomment>Parameter label: check types 304, 306. Must differ from the other labels of the type.</extracomment>
        <translation>Layer Color</translation>
    </message>
    <message id="1565">
        <source>Layer Line Style</source>
        <extracomment>Parameter label: check types 304, 306. Must differ from the other labels of the type.</extracomment>
        <translation>Layer Line Style</translation>
    </message>
    <message id="1566">
        <source>Layer Line Thickness</source>
        <extracomment>Parameter label: check types 304, 306. Must differ from the other labels of the type.</extracomment>
        <translation>Layer Line Thickness</translation>
    </message>
    <message id="1567">
        <source>Use Document Arrowhead Style</source>
        <extracomment>Parameter label: check types 201, 402. Must differ from the other labels of the type.</extracomment>
        <translation>Use Document Arrowhead Style</translation>
    </message>
    <message id="1568">
        <source>Use Document Arrow Placement</source>
        <extracomment>Parameter label: check type 402. Must differ from the other labels of the type.</extracomment>
        <translation>Use Document Arrow Placement</translation>
    </message>
    <message id="1569">
        <source>Arrow Placement</source>
        <extracomment>Parameter label: check type 402. Must differ from the other labels of the type.</extracomment>
        <translation>Arrow Placement</translation>
    </message>
    <message id="1575">
        <source>Outside</source>
        <extracomment>Option: one of the arrow placements. Must differ from the others.</extracomment>
        <translation>Outside</translation>
    </message>
    <message id="1576">
        <source>Inside</source>
        <extracomment>Option: one of the arrow placements. Must differ from the others.</extracomment>
        <translation>Inside</translation>
    </message>
    <message id="1577">
        <source>Smart</source>
        <extracomment>Option: one of the arrow placements. Must differ from the others.</extracomment>
        <translation>Smart</translation>
    </message>
    <message id="1578">
        <source>Drafting Standard</source>
        <extracomment>Parameter label: check type 101. Must differ from the other labels of the type.</extracomment>
        <translation>Drafting Standard</translation>
    </message>
    <message id="1579">
        <source>Arrowheads (Document)</source>
        <extracomment>Check name: check type 102; also the caption of its pane.</extracomment>
        <translation>Arrowheads (Document)</translation>
    </message>
    <message id="1580">
        <source>Arrowheads (Dimensions)</source>
        <extracomment>Check name: check type 402; also the caption of its pane.</extracomment>
        <translation>Arrowheads (Dimensions)</translation>
    </message>
    <message id="1581">
        <source>Drafting Standard</source>
        <extracomment>Check name: check type 101; also the caption of its pane.</extracomment>
        <translation>Drafting Standard</translation>
    </message>
    <message id="1582">
        <source>Layers</source>
        <extracomment>Check name: check types 303, 304; also the caption of its pane.</extracomment>
        <translation>Layers</translation>
    </message>
    <message id="1583">
        <source>Annotation Arrowhead Style</source>
        <extracomment>Parameter label: check type 201. Must differ from the other labels of the type.</extracomment>
        <translation>Annotation Arrowhead Style</translation>
    </message>
    <message id="1584">
        <source>Arrowheads (Annotations)</source>
        <extracomment>Check name: check type 201; also the caption of its pane.</extracomment>
        <translation>Arrowheads (Annotations)</translation>
    </message>
    <message id="1585">
        <source>Fixed Components</source>
        <extracomment>Check name: check type 603; also the caption of its pane.</extracomment>
        <translation>Fixed Components</translation>
    </message>
    <message id="1586">
        <source>Number of Fixed Components</source>
        <extracomment>Parameter label: check type 603. Must differ from the other labels of the type.</extracomment>
        <translation>Number of Fixed Components</translation>
    </message>
    <message id="1587">
        <source>Overlapping Views</source>
        <extracomment>Check name: check type 307; also the caption of its pane.</extracomment>
        <translation>Overlapping Views</translation>
    </message>
    <message id="1588">
        <source>The file is in use elsewhere and cannot be locked. Do you want to open it as read-only?</source>
        <extracomment>Question: Yes/No, on opening a file that cannot be locked. Yes opens it without a lock.</extracomment>
        <translation>The file is in use elsewhere and cannot be locked. Do you want to open it as read-only?</translation>
    </message>
    <message id="1589">
        <source>Overridden Dimensions</source>
        <extracomment>Check name: check type 401; also the caption of its pane. Also the label of its parameter.</extracomment>
        <translation>Overridden Dimensions</translation>
    </message>
    <message id="1590">
        <source>Add standards to the list</source>
        <extracomment>Tooltip: add button of the merge dialog.</extracomment>
        <translation>Add standards to the list</translation>
    </message>
    <message id="1591">
        <source>Overlapping Dimensions</source>
        <extracomment>Check name: check type 406; also the caption of its pane.</extracomment>
        <translation>Overlapping Dimensions</translation>
    </message>
    <message id="1592">
        <source>Remove the selected standards from the list</source>
        <extracomment>Tooltip: remove button of the merge dialog.</extracomment>
        <translation>Remove the selected standards from the list</translation>
    </message>
    <message id="1593">
        <source>References Up to Date</source>
        <extracomment>Check name: check type 107; also the caption of its pane.</extracomment>
        <translation>References Up to Date</translation>
    </message>
    <message id="1594">
        <source>Move the selected standard up</source>
        <extracomment>Tooltip: move-up button of the merge dialog.</extracomment>
        <translation>Move the selected standard up</translation>
    </message>
    <message id="1595">
        <source>Geometric Tolerance Datums</source>
        <extracomment>Check name: check type 301; also the caption of its pane.</extracomment>
        <translation>Geometric Tolerance Datums</translation>
    </message>
    <message id="1596">
        <source>Move the selected standard down</source>
        <extracomment>Tooltip: move-down button of the merge dialog.</extracomment>
        <translation>Move the selected standard down</translation>
    </message>
    <message id="1597">
        <source>Bill of Materials Balloons</source>
        <extracomment>Check name: check type 309; also the caption of its pane.</extracomment>
        <translation>Bill of Materials Balloons</translation>
    </message>
    <message id="1598">
        <source>Standards to be merged; a later standard replaces the checks of an earlier one</source>
        <extracomment>Tooltip: list of the merge dialog. The order counts.</extracomment>
        <translation>Standards to be merged; a later standard replaces the checks of an earlier one</translation>
    </message>
    <message id="1599">
        <source>Fully Defined Sketches</source>
        <extracomment>Check name: check type 702; also the caption of its pane.</extracomment>
        <translation>Fully Defined Sketches</translation>
    </message>
    <message id="1600">
        <source>Feature Errors</source>
        <extracomment>Check name: check type 701; also the caption of its pane.</extracomment>
        <translation>Feature Errors</translation>
    </message>
    <message id="1601">
        <source>Mate Errors</source>
        <extracomment>Check name: check type 602; also the caption of its pane.</extracomment>
        <translation>Mate Errors</translation>
    </message>
    <message id="1605">
        <source>Sheet Format</source>
        <extracomment>Check name: check type 302; also the caption of its pane.</extracomment>
        <translation>Sheet Format</translation>
    </message>
    <message id="1606">
        <source>A0</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A0</translation>
    </message>
    <message id="1607">
        <source>A</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A</translation>
    </message>
    <message id="1608">
        <source>A Portrait</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A Portrait</translation>
    </message>
    <message id="1609">
        <source>B</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>B</translation>
    </message>
    <message id="1610">
        <source>C</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>C</translation>
    </message>
    <message id="1611">
        <source>D</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>D</translation>
    </message>
    <message id="1612">
        <source>E</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>E</translation>
    </message>
    <message id="1613">
        <source>A1</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A1</translation>
    </message>
    <message id="1614">
        <source>A2</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A2</translation>
    </message>
    <message id="1615">
        <source>A3</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A3</translation>
    </message>
    <message id="1616">
        <source>A4</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A4</translation>
    </message>
    <message id="1617">
        <source>A4 Portrait</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>A4 Portrait</translation>
    </message>
    <message id="1618">
        <source>Sheet Size</source>
        <extracomment>Parameter label: check type 302. Must differ from the other labels of the type.</extracomment>
        <translation>Sheet Size</translation>
    </message>
    <message id="1619">
        <source>Sheet Width</source>
        <extracomment>Parameter label: check type 302. Must differ from the other labels of the type.</extracomment>
        <translation>Sheet Width</translation>
    </message>
    <message id="1620">
        <source>Sheet Height</source>
        <extracomment>Parameter label: check type 302. Must differ from the other labels of the type.</extracomment>
        <translation>Sheet Height</translation>
    </message>
    <message id="1621">
        <source>Angstroms</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Angstroms</translation>
    </message>
    <message id="1622">
        <source>Nanometers</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Nanometers</translation>
    </message>
    <message id="1623">
        <source>Microns</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Microns</translation>
    </message>
    <message id="1624">
        <source>Millimeters</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Millimeters</translation>
    </message>
    <message id="1625">
        <source>Centimeters</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Centimeters</translation>
    </message>
    <message id="1626">
        <source>Meters</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Meters</translation>
    </message>
    <message id="1627">
        <source>Microinches</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Microinches</translation>
    </message>
    <message id="1628">
        <source>Mils</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Mils</translation>
    </message>
    <message id="1629">
        <source>Inches</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Inches</translation>
    </message>
    <message id="1630">
        <source>Feet</source>
        <extracomment>Unit: one of the length units. Must differ from the others.</extracomment>
        <translation>Feet</translation>
    </message>
    <message id="1631">
        <source>Feet and Inches</source>
        <extracomment>Unit: one of the length units. It has no short form and is not offered as the unit of a standard.</extracomment>
        <translation>Feet and Inches</translation>
    </message>
    <message id="1632">
        <source>Any</source>
        <extracomment>Operator: the parameter is not tested. First row of every comparison box; also property type, and a cell or picker without a choice. The English text must stay "Any".</extracomment>
        <translation>Any</translation>
    </message>
    <message id="1633">
        <source>Degrees</source>
        <extracomment>Unit: one of the angle units. Must differ from the others.</extracomment>
        <translation>Degrees</translation>
    </message>
    <message id="1634">
        <source>Degrees and Minutes</source>
        <extracomment>Unit: row of the angle unit list box; minutes of arc.</extracomment>
        <translation>Degrees and Minutes</translation>
    </message>
    <message id="1635">
        <source>Degrees, Minutes and Seconds</source>
        <extracomment>Unit: row of the angle unit list box; seconds of arc.</extracomment>
        <translation>Degrees, Minutes and Seconds</translation>
    </message>
    <message id="1636">
        <source>Radians</source>
        <extracomment>Unit: one of the angle units. Must differ from the others.</extracomment>
        <translation>Radians</translation>
    </message>
    <message id="1637">
        <source>Milligrams</source>
        <extracomment>Unit: one of the mass units. Must differ from the others.</extracomment>
        <translation>Milligrams</translation>
    </message>
    <message id="1638">
        <source>Grams</source>
        <extracomment>Unit: one of the mass units. Must differ from the others.</extracomment>
        <translation>Grams</translation>
    </message>
    <message id="1639">
        <source>Kilograms</source>
        <extracomment>Unit: one of the mass units. Must differ from the others.</extracomment>
        <translation>Kilograms</translation>
    </message>
    <message id="1640">
        <source>Pounds</source>
        <extracomment>Unit: one of the mass units. Must differ from the others.</extracomment>
        <translation>Pounds</translation>
    </message>
    <message id="1641">
        <source>Cubic Millimeters</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Millimeters</translation>
    </message>
    <message id="1642">
        <source>Cubic Centimeters</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Centimeters</translation>
    </message>
    <message id="1643">
        <source>Cubic Meters</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Meters</translation>
    </message>
    <message id="1644">
        <source>Cubic Angstroms</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Angstroms</translation>
    </message>
    <message id="1645">
        <source>Cubic Nanometers</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Nanometers</translation>
    </message>
    <message id="1646">
        <source>Cubic Microns</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Microns</translation>
    </message>
    <message id="1647">
        <source>Cubic Inches</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Inches</translation>
    </message>
    <message id="1649">
        <source>Cubic Feet</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Cubic Feet</translation>
    </message>
    <message id="1650">
        <source>Liters</source>
        <extracomment>Unit: one of the volume units. Must differ from the others.</extracomment>
        <translation>Liters</translation>
    </message>
    <message id="1651">
        <source>Newtons</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Newtons</translation>
    </message>
    <message id="1652">
        <source>Kilonewtons</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Kilonewtons</translation>
    </message>
    <message id="1653">
        <source>Dynes</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Dynes</translation>
    </message>
    <message id="1654">
        <source>Kilograms-Force</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Kilograms-Force</translation>
    </message>
    <message id="1655">
        <source>Pounds-Force</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Pounds-Force</translation>
    </message>
    <message id="1656">
        <source>Ounces-Force</source>
        <extracomment>Unit: one of the force units. Must differ from the others.</extracomment>
        <translation>Ounces-Force</translation>
    </message>
    <message id="1657">
        <source>between</source>
        <extracomment>Operator: a range. Reports write it in front of the two values, as in between(1,2).</extracomment>
        <translation>between</translation>
    </message>
    <message id="1658">
        <source>one of</source>
        <extracomment>Operator: a list of values, one of which must fit.</extracomment>
        <translation>one of</translation>
    </message>
    <message id="1659">
        <source>none of</source>
        <extracomment>Operator: a list of values, none of which may fit. Reports write it directly in front of the value; no blank at the end.</extracomment>
        <translation>none of</translation>
    </message>
    <message id="1660">
        <source>Yes</source>
        <extracomment>Option: one of the yes and no. Must differ from the others.</extracomment>
        <translation>Yes</translation>
    </message>
    <message id="1661">
        <source>No</source>
        <extracomment>Option: one of the yes and no. Must differ from the others.</extracomment>
        <translation>No</translation>
    </message>
    <message id="1662">
        <source>Units (Document)</source>
        <extracomment>Check name: check type 108; also the caption of its pane.</extracomment>
        <translation>Units (Document)</translation>
    </message>
    <message id="1663">
        <source>Unit System</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Unit System</translation>
    </message>
    <message id="1664">
        <source>Length Unit</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Length Unit</translation>
    </message>
    <message id="1665">
        <source>Length Decimal Places</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Length Decimal Places</translation>
    </message>
    <message id="1666">
        <source>Length Number Format</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Length Number Format</translation>
    </message>
    <message id="1667">
        <source>Length Fraction Denominator</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Length Fraction Denominator</translation>
    </message>
    <message id="1668">
        <source>Round to Nearest Length Fraction</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Round to Nearest Length Fraction</translation>
    </message>
    <message id="1669">
        <source>Dual Length Unit</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Length Unit</translation>
    </message>
    <message id="1670">
        <source>Dual Decimal Places</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Decimal Places</translation>
    </message>
    <message id="1671">
        <source>Dual Number Format</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Number Format</translation>
    </message>
    <message id="1672">
        <source>Dual Fraction Denominator</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Fraction Denominator</translation>
    </message>
    <message id="1673">
        <source>Round to Nearest Dual Fraction</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Round to Nearest Dual Fraction</translation>
    </message>
    <message id="1674">
        <source>Angle Unit</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Angle Unit</translation>
    </message>
    <message id="1675">
        <source>Angle Decimal Places</source>
        <extracomment>Parameter label: check types 108, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Angle Decimal Places</translation>
    </message>
    <message id="1676">
        <source>Mass Property Length Unit</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Mass Property Length Unit</translation>
    </message>
    <message id="1677">
        <source>Mass Unit</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Mass Unit</translation>
    </message>
    <message id="1678">
        <source>Volume Unit</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Volume Unit</translation>
    </message>
    <message id="1679">
        <source>Force Unit</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Force Unit</translation>
    </message>
    <message id="1680">
        <source>Mass Property Decimal Places</source>
        <extracomment>Parameter label: check type 108. Must differ from the other labels of the type.</extracomment>
        <translation>Mass Property Decimal Places</translation>
    </message>
    <message id="1681">
        <source>MKS (meter, kilogram, second)</source>
        <extracomment>Option: one of the unit systems. Must differ from the others.</extracomment>
        <translation>MKS (meter, kilogram, second)</translation>
    </message>
    <message id="1682">
        <source>CGS (centimeter, gram, second)</source>
        <extracomment>Option: one of the unit systems. Must differ from the others.</extracomment>
        <translation>CGS (centimeter, gram, second)</translation>
    </message>
    <message id="1683">
        <source>MMGS (millimeter, gram, second)</source>
        <extracomment>Option: one of the unit systems. Must differ from the others.</extracomment>
        <translation>MMGS (millimeter, gram, second)</translation>
    </message>
    <message id="1684">
        <source>Custom</source>
        <extracomment>Option: one of the unit systems. Must differ from the others.</extracomment>
        <translation>Custom</translation>
    </message>
    <message id="1685">
        <source>IPS (inch, pound, second)</source>
        <extracomment>Option: one of the unit systems. Must differ from the others.</extracomment>
        <translation>IPS (inch, pound, second)</translation>
    </message>
    <message id="1686">
        <source>Decimal</source>
        <extracomment>Option: one of the number formats. Must differ from the others.</extracomment>
        <translation>Decimal</translation>
    </message>
    <message id="1687">
        <source>Fraction</source>
        <extracomment>Option: one of the number formats. Must differ from the others.</extracomment>
        <translation>Fraction</translation>
    </message>
    <message id="1688">
        <source>Bill of Materials Balloon</source>
        <extracomment>Parameter label: check type 309. Must differ from the other labels of the type.</extracomment>
        <translation>Bill of Materials Balloon</translation>
    </message>
    <message id="1689">
        <source>Units (Dimensions)</source>
        <extracomment>Check name: check type 405; also the caption of its pane.</extracomment>
        <translation>Units (Dimensions)</translation>
    </message>
    <message id="1690">
        <source>Use Document Setting</source>
        <extracomment>Parameter label: check types 202, 314, 403, 405. Must differ from the other labels of the type.</extracomment>
        <translation>Use Document Setting</translation>
    </message>
    <message id="1691">
        <source>Spelling</source>
        <extracomment>Check name: check type 203; also the caption of its pane.</extracomment>
        <translation>Spelling</translation>
    </message>
    <message id="1694">
        <source>Datum Reference</source>
        <extracomment>Parameter label: check type 301. Must differ from the other labels of the type.</extracomment>
        <translation>Datum Reference</translation>
    </message>
    <message id="1695">
        <source>Regular</source>
        <extracomment>Option: one of the font styles. Must differ from the others.</extracomment>
        <translation>Regular</translation>
    </message>
    <message id="1696">
        <source>Italic</source>
        <extracomment>Option: one of the font styles. Must differ from the others.</extracomment>
        <translation>Italic</translation>
    </message>
    <message id="1697">
        <source>Bold</source>
        <extracomment>Option: one of the font styles. Must differ from the others.</extracomment>
        <translation>Bold</translation>
    </message>
    <message id="1698">
        <source>Bold Italic</source>
        <extracomment>Option: one of the font styles. Must differ from the others.</extracomment>
        <translation>Bold Italic</translation>
    </message>
    <message id="1699">
        <source>Font (Dimensions)</source>
        <extracomment>Check name: check type 403; also the caption of its pane.</extracomment>
        <translation>Font (Dimensions)</translation>
    </message>
    <message id="1700">
        <source>Font Name</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Font Name</translation>
    </message>
    <message id="1701">
        <source>Font Style</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Font Style</translation>
    </message>
    <message id="1702">
        <source>Strikeout</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Strikeout</translation>
    </message>
    <message id="1703">
        <source>Underline</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Underline</translation>
    </message>
    <message id="1704">
        <source>Text Height</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Text Height</translation>
    </message>
    <message id="1705">
        <source>Text Spacing</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Text Spacing</translation>
    </message>
    <message id="1706">
        <source>Text Height in Points</source>
        <extracomment>Parameter label: all font checks. Must differ from the other labels of the type.</extracomment>
        <translation>Text Height in Points</translation>
    </message>
    <message id="1707">
        <source>Spelling Errors</source>
        <extracomment>Parameter label: check type 203. Must differ from the other labels of the type.</extracomment>
        <translation>Spelling Errors</translation>
    </message>
    <message id="1708">
        <source>In Context</source>
        <extracomment>Option: one of the reference states. Must differ from the others.</extracomment>
        <translation>In Context</translation>
    </message>
    <message id="1709">
        <source>Out of Context</source>
        <extracomment>Option: one of the reference states. Must differ from the others.</extracomment>
        <translation>Out of Context</translation>
    </message>
    <message id="1710">
        <source>Locked</source>
        <extracomment>Option: one of the reference states. Must differ from the others.</extracomment>
        <translation>Locked</translation>
    </message>
    <message id="1711">
        <source>Broken</source>
        <extracomment>Option: one of the reference states. Must differ from the others.</extracomment>
        <translation>Broken</translation>
    </message>
    <message id="1712">
        <source>Dangling</source>
        <extracomment>Option: one of the reference states. Must differ from the others.</extracomment>
        <translation>Dangling</translation>
    </message>
    <message id="1713">
        <source>External References</source>
        <extracomment>Check name: check type 604; also the caption of its pane.</extracomment>
        <translation>External References</translation>
    </message>
    <message id="1714">
        <source>External Reference State</source>
        <extracomment>Parameter label: check type 604. Must differ from the other labels of the type.</extracomment>
        <translation>External Reference State</translation>
    </message>
    <message id="1715">
        <source>Font (Annotations)</source>
        <extracomment>Check name: check type 202; also the caption of its pane.</extracomment>
        <translation>Font (Annotations)</translation>
    </message>
    <message id="1716">
        <source>Text</source>
        <extracomment>Option: one of the property types. Must differ from the others.</extracomment>
        <translation>Text</translation>
    </message>
    <message id="1717">
        <source>Number</source>
        <extracomment>Option: one of the property types. Must differ from the others.</extracomment>
        <translation>Number</translation>
    </message>
    <message id="1718">
        <source>Date</source>
        <extracomment>Option: one of the property types. Must differ from the others.</extracomment>
        <translation>Date</translation>
    </message>
    <message id="1719">
        <source>Yes or No</source>
        <extracomment>Option: one of the property types. Must differ from the others.</extracomment>
        <translation>Yes or No</translation>
    </message>
    <message id="1720">
        <source>contains</source>
        <extracomment>Operator: the text has this part. Reports write it directly in front of the value; no blank at the end.</extracomment>
        <translation>contains</translation>
    </message>
    <message id="1721">
        <source>begins with</source>
        <extracomment>Operator: the text starts so. Reports write it directly in front of the value; no blank at the end.</extracomment>
        <translation>begins with</translation>
    </message>
    <message id="1722">
        <source>ends with</source>
        <extracomment>Operator: the text ends so. Reports write it directly in front of the value; no blank at the end.</extracomment>
        <translation>ends with</translation>
    </message>
    <message id="1723">
        <source>Custom Properties</source>
        <extracomment>Check name: check types 104, 105; also the caption of its pane.</extracomment>
        <translation>Custom Properties</translation>
    </message>
    <message id="1724">
        <source>Property Name</source>
        <extracomment>Parameter label: check types 104, 106. Must differ from the other labels of the type.</extracomment>
        <translation>Property Name</translation>
    </message>
    <message id="1725">
        <source>Property Type</source>
        <extracomment>Parameter label: check types 104, 106. Must differ from the other labels of the type.</extracomment>
        <translation>Property Type</translation>
    </message>
    <message id="1726">
        <source>Property Value</source>
        <extracomment>Parameter label: check types 104, 106. Must differ from the other labels of the type.</extracomment>
        <translation>Property Value</translation>
    </message>
    <message id="1727">
        <source>Overridden Mass Property</source>
        <extracomment>Parameter label: check type 118. Must differ from the other labels of the type.</extracomment>
        <translation>Overridden Mass Property</translation>
    </message>
    <message id="1730">
        <source>Nonstandard Hole Size</source>
        <extracomment>Parameter label: check type 703. Must differ from the other labels of the type.</extracomment>
        <translation>Nonstandard Hole Size</translation>
    </message>
    <message id="1733">
        <source>Hidden Components</source>
        <extracomment>Caption: pane of hidden components.</extracomment>
        <translation>Hidden Components</translation>
    </message>
    <message id="1735">
        <source>nm</source>
        <extracomment>Unit: short form, written directly behind a value: nanometer. Do not translate.</extracomment>
        <translation>nm</translation>
    </message>
    <message id="1736">
        <source>Suppressed Components</source>
        <extracomment>Check name: check type 606; also the caption of its pane.</extracomment>
        <translation>Suppressed Components</translation>
    </message>
    <message id="1737">
        <source>Suppressed Component</source>
        <extracomment>Parameter label: check type 606. Must differ from the other labels of the type.</extracomment>
        <translation>Suppressed Component</translation>
    </message>
    <message id="1738">
        <source>Suppressed Features</source>
        <extracomment>Check name: check type 704; also the caption of its pane.</extracomment>
        <translation>Suppressed Features</translation>
    </message>
    <message id="1739">
        <source>Suppressed Feature</source>
        <extracomment>Parameter label: check type 704. Must differ from the other labels of the type.</extracomment>
        <translation>Suppressed Feature</translation>
    </message>
    <message id="1740">
        <source>Bend Table</source>
        <extracomment>Check name: check type 503; also the caption of its pane.</extracomment>
        <translation>Bend Table</translation>
    </message>
    <message id="1741">
        <source>Bend Table File</source>
        <extracomment>Parameter label: check type 503. Must differ from the other labels of the type.</extracomment>
        <translation>Bend Table File</translation>
    </message>
    <message id="1742">
        <source>Display Mode</source>
        <extracomment>Parameter label: check type 312. Must differ from the other labels of the type.</extracomment>
        <translation>Display Mode</translation>
    </message>
    <message id="1743">
        <source>View Display Mode</source>
        <extracomment>Check name: check type 312; also the caption of its pane.</extracomment>
        <translation>View Display Mode</translation>
    </message>
    <message id="1744">
        <source>Wireframe</source>
        <extracomment>Option: one of the display modes. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Wireframe</translation>
    </message>
    <message id="1745">
        <source>Hidden Lines Removed</source>
        <extracomment>Option: one of the display modes. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Hidden Lines Removed</translation>
    </message>
    <message id="1746">
        <source>Hidden Lines Visible</source>
        <extracomment>Option: one of the display modes. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Hidden Lines Visible</translation>
    </message>
    <message id="1747">
        <source>Shaded</source>
        <extracomment>Option: one of the display modes. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Shaded</translation>
    </message>
    <message id="1748">
        <source>Shaded with Edges</source>
        <extracomment>Option: one of the display modes. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Shaded with Edges</translation>
    </message>
    <message id="1749">
        <source>&amp;Learn from Document...</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Learn from Document...</translation>
    </message>
    <message id="1752">
        <source>Error Found</source>
        <extracomment>Parameter label: check types 602, 701. Must differ from the other labels of the type.</extracomment>
        <translation>Error Found</translation>
    </message>
    <message id="1753">
        <source>Interference</source>
        <extracomment>Check name: check type 607; also the caption of its pane.</extracomment>
        <translation>Interference</translation>
    </message>
    <message id="1754">
        <source>Interference Volume</source>
        <extracomment>Parameter label: check type 607. Must differ from the other labels of the type.</extracomment>
        <translation>Interference Volume</translation>
    </message>
    <message id="1755">
        <source>Treat Coincident Faces as Interference</source>
        <extracomment>Option: one of the interference options. Must differ from the others.</extracomment>
        <translation>Treat Coincident Faces as Interference</translation>
    </message>
    <message id="1756">
        <source>Include Interference Within Multibody Parts</source>
        <extracomment>Option: one of the interference options. Must differ from the others.</extracomment>
        <translation>Include Interference Within Multibody Parts</translation>
    </message>
    <message id="1757">
        <source>Treat Subassemblies as Components</source>
        <extracomment>Option: one of the interference options. Must differ from the others.</extracomment>
        <translation>Treat Subassemblies as Components</translation>
    </message>
    <message id="1758">
        <source>Interference Option</source>
        <extracomment>Parameter label: check type 607. Must differ from the other labels of the type.</extracomment>
        <translation>Interference Option</translation>
    </message>
    <message id="1759">
        <source>Extension Line Gap</source>
        <extracomment>Check name: check type 314; also the caption of its pane.</extracomment>
        <translation>Extension Line Gap</translation>
    </message>
    <message id="1760">
        <source>Collapse</source>
        <extracomment>Tooltip: button of a pane that is expanded.</extracomment>
        <translation>Collapse</translation>
    </message>
    <message id="1761">
        <source>Expand</source>
        <extracomment>Tooltip: button of a pane that is collapsed.</extracomment>
        <translation>Expand</translation>
    </message>
    <message id="1764">
        <source>No Virtual Sharp</source>
        <extracomment>Option: one of the virtual sharp displays. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>No Virtual Sharp</translation>
    </message>
    <message id="1765">
        <source>Plus</source>
        <extracomment>Option: one of the virtual sharp displays. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Plus</translation>
    </message>
    <message id="1766">
        <source>Star</source>
        <extracomment>Option: one of the virtual sharp displays. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Star</translation>
    </message>
    <message id="1767">
        <source>Witness Lines</source>
        <extracomment>Option: one of the virtual sharp displays. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Witness Lines</translation>
    </message>
    <message id="1768">
        <source>Dot</source>
        <extracomment>Option: one of the virtual sharp displays. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Dot</translation>
    </message>
    <message id="1769">
        <source>No checks could be learned from this document.</source>
        <extracomment>Message: learning from a document found nothing.</extracomment>
        <translation>No checks could be learned from this document.</translation>
    </message>
    <message id="1821">
        <source>Å</source>
        <extracomment>Unit: short form, written directly behind a value: angstrom. Do not translate.</extracomment>
        <translation>Å</translation>
    </message>
    <message id="1822">
        <source>Part Material</source>
        <extracomment>Check name: check type 501; also the caption of its pane.</extracomment>
        <translation>Part Material</translation>
    </message>
    <message id="1823">
        <source>Material</source>
        <extracomment>Parameter label: check types 501, 601. Must differ from the other labels of the type.</extracomment>
        <translation>Material</translation>
    </message>
    <message id="1824">
        <source>Component Material</source>
        <extracomment>Check name: check type 601.</extracomment>
        <translation>Component Material</translation>
    </message>
    <message id="1825">
        <source>ISO</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>ISO</translation>
    </message>
    <message id="1826">
        <source>ANSI</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>ANSI</translation>
    </message>
    <message id="1827">
        <source>GB</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>GB</translation>
    </message>
    <message id="1828">
        <source>DIN</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>DIN</translation>
    </message>
    <message id="1829">
        <source>JIS</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>JIS</translation>
    </message>
    <message id="1830">
        <source>BSI</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>BSI</translation>
    </message>
    <message id="1831">
        <source>GOST</source>
        <extracomment>Option: one of the drafting standards. Must differ from the others.</extracomment>
        <translation>GOST</translation>
    </message>
    <message id="1832">
        <source>Open Arrow</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Open Arrow</translation>
    </message>
    <message id="1833">
        <source>Closed Arrow</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Closed Arrow</translation>
    </message>
    <message id="1834">
        <source>Filled Arrow</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Filled Arrow</translation>
    </message>
    <message id="1835">
        <source>Open Dot</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Open Dot</translation>
    </message>
    <message id="1836">
        <source>Filled Dot</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Filled Dot</translation>
    </message>
    <message id="1837">
        <source>Oblique Stroke</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Oblique Stroke</translation>
    </message>
    <message id="1838">
        <source>Open Box</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Open Box</translation>
    </message>
    <message id="1839">
        <source>Filled Box</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Filled Box</translation>
    </message>
    <message id="1840">
        <source>Open Datum Triangle</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Open Datum Triangle</translation>
    </message>
    <message id="1841">
        <source>Filled Datum Triangle</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Filled Datum Triangle</translation>
    </message>
    <message id="1842">
        <source>No Arrowhead</source>
        <extracomment>Option: one of the arrowhead styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>No Arrowhead</translation>
    </message>
    <message id="1843">
        <source>Thin</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thin</translation>
    </message>
    <message id="1844">
        <source>Normal</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Normal</translation>
    </message>
    <message id="1845">
        <source>Thick</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick</translation>
    </message>
    <message id="1846">
        <source>Thick (2)</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick (2)</translation>
    </message>
    <message id="1847">
        <source>Thick (3)</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick (3)</translation>
    </message>
    <message id="1848">
        <source>Thick (4)</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick (4)</translation>
    </message>
    <message id="1849">
        <source>Thick (5)</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick (5)</translation>
    </message>
    <message id="1850">
        <source>Thick (6)</source>
        <extracomment>Option: one of the line thicknesses. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thick (6)</translation>
    </message>
    <message id="1851">
        <source>Solid</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Solid</translation>
    </message>
    <message id="1852">
        <source>Dashed</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Dashed</translation>
    </message>
    <message id="1853">
        <source>Phantom</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Phantom</translation>
    </message>
    <message id="1854">
        <source>Chain</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Chain</translation>
    </message>
    <message id="1855">
        <source>Center</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Center</translation>
    </message>
    <message id="1856">
        <source>Stitch</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Stitch</translation>
    </message>
    <message id="1857">
        <source>Thin-Thick Chain</source>
        <extracomment>Option: one of the line styles. Must differ from the others. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Thin-Thick Chain</translation>
    </message>
    <message id="1864">
        <source>Drafting Standard</source>
        <extracomment>Button text: catalogue button of check type 101.</extracomment>
        <translation>Drafting Standard</translation>
    </message>
    <message id="1865">
        <source>Arrowheads</source>
        <extracomment>Button text: catalogue button of check types 102, 201, 402.</extracomment>
        <translation>Arrowheads</translation>
    </message>
    <message id="1866">
        <source>Font</source>
        <extracomment>Button text: catalogue button of check types 202, 403.</extracomment>
        <translation>Font</translation>
    </message>
    <message id="1867">
        <source>Custom Properties</source>
        <extracomment>Button text: catalogue button of check type 104.</extracomment>
        <translation>Custom Properties</translation>
    </message>
    <message id="1868">
        <source>Units</source>
        <extracomment>Button text: catalogue button of check types 108, 405.</extracomment>
        <translation>Units</translation>
    </message>
    <message id="1869">
        <source>References Up to Date</source>
        <extracomment>Button text: catalogue button of check type 107.</extracomment>
        <translation>References Up to Date</translation>
    </message>
    <message id="1870">
        <source>Note Font</source>
        <extracomment>Button text: catalogue button of check type 109.</extracomment>
        <translation>Note Font</translation>
    </message>
    <message id="1871">
        <source>Dimension Font</source>
        <extracomment>Button text: catalogue button of check type 111.</extracomment>
        <translation>Dimension Font</translation>
    </message>
    <message id="1872">
        <source>Detail View Label Font</source>
        <extracomment>Button text: catalogue button of check type 112.</extracomment>
        <translation>Detail View Label Font</translation>
    </message>
    <message id="1873">
        <source>Section View Label Font</source>
        <extracomment>Button text: catalogue button of check type 113.</extracomment>
        <translation>Section View Label Font</translation>
    </message>
    <message id="1874">
        <source>Surface Finish Symbol Font</source>
        <extracomment>Button text: catalogue button of check type 114.</extracomment>
        <translation>Surface Finish Symbol Font</translation>
    </message>
    <message id="1875">
        <source>Weld Symbol Font</source>
        <extracomment>Button text: catalogue button of check type 115.</extracomment>
        <translation>Weld Symbol Font</translation>
    </message>
    <message id="1876">
        <source>Table Font</source>
        <extracomment>Button text: catalogue button of check type 116.</extracomment>
        <translation>Table Font</translation>
    </message>
    <message id="1877">
        <source>View Arrow Font</source>
        <extracomment>Button text: catalogue button of check type 117.</extracomment>
        <translation>View Arrow Font</translation>
    </message>
    <message id="1878">
        <source>Balloon Font</source>
        <extracomment>Button text: catalogue button of check type 110.</extracomment>
        <translation>Balloon Font</translation>
    </message>
    <message id="1879">
        <source>Geometric Tolerance Datums</source>
        <extracomment>Button text: catalogue button of check type 301.</extracomment>
        <translation>Geometric Tolerance Datums</translation>
    </message>
    <message id="1880">
        <source>Overridden Dimensions</source>
        <extracomment>Button text: catalogue button of check type 401.</extracomment>
        <translation>Overridden Dimensions</translation>
    </message>
    <message id="1881">
        <source>Overlapping Dimensions</source>
        <extracomment>Button text: catalogue button of check type 406.</extracomment>
        <translation>Overlapping Dimensions</translation>
    </message>
    <message id="1882">
        <source>Sheet Format</source>
        <extracomment>Button text: catalogue button of check type 302.</extracomment>
        <translation>Sheet Format</translation>
    </message>
    <message id="1883">
        <source>Layers</source>
        <extracomment>Button text: catalogue button of check type 304.</extracomment>
        <translation>Layers</translation>
    </message>
    <message id="1884">
        <source>Overlapping Views</source>
        <extracomment>Button text: catalogue button of check type 307.</extracomment>
        <translation>Overlapping Views</translation>
    </message>
    <message id="1885">
        <source>Title Block</source>
        <extracomment>Button text: catalogue button of check type 308.</extracomment>
        <translation>Title Block</translation>
    </message>
    <message id="1886">
        <source>Bill of Materials Balloons</source>
        <extracomment>Button text: catalogue button of check type 309.</extracomment>
        <translation>Bill of Materials Balloons</translation>
    </message>
    <message id="1887">
        <source>Part Material</source>
        <extracomment>Button text: catalogue button of check type 501.</extracomment>
        <translation>Part Material</translation>
    </message>
    <message id="1888">
        <source>Component Material</source>
        <extracomment>Button text: catalogue button of check type 601.</extracomment>
        <translation>Component Material</translation>
    </message>
    <message id="1889">
        <source>Mate Errors</source>
        <extracomment>Button text: catalogue button of check type 602.</extracomment>
        <translation>Mate Errors</translation>
    </message>
    <message id="1890">
        <source>Fixed Components</source>
        <extracomment>Button text: catalogue button of check type 603.</extracomment>
        <translation>Fixed Components</translation>
    </message>
    <message id="1891">
        <source>External References</source>
        <extracomment>Button text: catalogue button of check type 604.</extracomment>
        <translation>External References</translation>
    </message>
    <message id="1892">
        <source>Feature Errors</source>
        <extracomment>Button text: catalogue button of check type 701.</extracomment>
        <translation>Feature Errors</translation>
    </message>
    <message id="1893">
        <source>Spelling</source>
        <extracomment>Button text: catalogue button of check type 203.</extracomment>
        <translation>Spelling</translation>
    </message>
    <message id="1894">
        <source>Overridden Mass Properties</source>
        <extracomment>Button text: catalogue button of check type 118.</extracomment>
        <translation>Overridden Mass Properties</translation>
    </message>
    <message id="1895">
        <source>Standard Hole Sizes</source>
        <extracomment>Button text: catalogue button of check type 703.</extracomment>
        <translation>Standard Hole Sizes</translation>
    </message>
    <message id="1896">
        <source>Geometric Tolerance Font</source>
        <extracomment>Button text: catalogue button of check type 119.</extracomment>
        <translation>Geometric Tolerance Font</translation>
    </message>
    <message id="1897">
        <source>Auxiliary View Label Font</source>
        <extracomment>Button text: catalogue button of check type 120.</extracomment>
        <translation>Auxiliary View Label Font</translation>
    </message>
    <message id="1899">
        <source>Suppressed Components</source>
        <extracomment>Button text: catalogue button of check type 606.</extracomment>
        <translation>Suppressed Components</translation>
    </message>
    <message id="1900">
        <source>Suppressed Features</source>
        <extracomment>Button text: catalogue button of check type 704.</extracomment>
        <translation>Suppressed Features</translation>
    </message>
    <message id="1901">
        <source>Bend Table</source>
        <extracomment>Button text: catalogue button of check type 503.</extracomment>
        <translation>Bend Table</translation>
    </message>
    <message id="1902">
        <source>View Display Mode</source>
        <extracomment>Button text: catalogue button of check type 312.</extracomment>
        <translation>View Display Mode</translation>
    </message>
    <message id="1903">
        <source>Replaced Dimension Text</source>
        <extracomment>Button text: catalogue button of check type 407.</extracomment>
        <translation>Replaced Dimension Text</translation>
    </message>
    <message id="1904">
        <source>Text Alignment</source>
        <extracomment>Button text: catalogue button of check type 408.</extracomment>
        <translation>Text Alignment</translation>
    </message>
    <message id="1905">
        <source>Precision</source>
        <extracomment>Button text: catalogue button of check type 409.</extracomment>
        <translation>Precision</translation>
    </message>
    <message id="1906">
        <source>Fully Defined Sketches</source>
        <extracomment>Button text: catalogue button of check type 702.</extracomment>
        <translation>Fully Defined Sketches</translation>
    </message>
    <message id="1907">
        <source>Target Value</source>
        <extracomment>Heading: column of the correction values on the summary page, and third column of the report (the values). Must serve both. No &amp; and no &lt;.</extracomment>
        <translation>Target Value</translation>
    </message>
    <message id="1908">
        <source>Note Font (Document)</source>
        <extracomment>Check name: check type 109; also the caption of its pane.</extracomment>
        <translation>Note Font (Document)</translation>
    </message>
    <message id="1909">
        <source>Dimension Font (Document)</source>
        <extracomment>Check name: check type 111; also the caption of its pane.</extracomment>
        <translation>Dimension Font (Document)</translation>
    </message>
    <message id="1910">
        <source>Detail View Label Font (Document)</source>
        <extracomment>Check name: check type 112; also the caption of its pane.</extracomment>
        <translation>Detail View Label Font (Document)</translation>
    </message>
    <message id="1911">
        <source>Section View Label Font (Document)</source>
        <extracomment>Check name: check type 113; also the caption of its pane.</extracomment>
        <translation>Section View Label Font (Document)</translation>
    </message>
    <message id="1912">
        <source>Surface Finish Symbol Font (Document)</source>
        <extracomment>Check name: check type 114; also the caption of its pane.</extracomment>
        <translation>Surface Finish Symbol Font (Document)</translation>
    </message>
    <message id="1913">
        <source>Weld Symbol Font (Document)</source>
        <extracomment>Check name: check type 115; also the caption of its pane.</extracomment>
        <translation>Weld Symbol Font (Document)</translation>
    </message>
    <message id="1914">
        <source>Table Font (Document)</source>
        <extracomment>Check name: check type 116; also the caption of its pane.</extracomment>
        <translation>Table Font (Document)</translation>
    </message>
    <message id="1915">
        <source>View Arrow Font (Document)</source>
        <extracomment>Check name: check type 117; also the caption of its pane.</extracomment>
        <translation>View Arrow Font (Document)</translation>
    </message>
    <message id="1916">
        <source>Balloon Font (Document)</source>
        <extracomment>Check name: check type 110; also the caption of its pane.</extracomment>
        <translation>Balloon Font (Document)</translation>
    </message>
    <message id="1917">
        <source>The folder could not be created: </source>
        <extracomment>Message: making the report's folder of pictures failed. A path follows the text: keep the blank at its end.</extracomment>
        <translation>The folder could not be created: </translation>
    </message>
    <message id="1919">
        <source>Under Defined</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Under Defined</translation>
    </message>
    <message id="1920">
        <source>Fully Defined</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Fully Defined</translation>
    </message>
    <message id="1921">
        <source>Over Defined</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Over Defined</translation>
    </message>
    <message id="1922">
        <source>Sketch State</source>
        <extracomment>Parameter label: check type 702. Must differ from the other labels of the type.</extracomment>
        <translation>Sketch State</translation>
    </message>
    <message id="1923">
        <source>Create a new standard</source>
        <extracomment>Caption: link on the welcome page.</extracomment>
        <translation>Create a new standard</translation>
    </message>
    <message id="1924">
        <source>Open an existing standard</source>
        <extracomment>Caption: link on the welcome page.</extracomment>
        <translation>Open an existing standard</translation>
    </message>
    <message id="1925">
        <source>Title Block</source>
        <extracomment>Check name: check types 308, 310; also the caption of its pane.</extracomment>
        <translation>Title Block</translation>
    </message>
    <message id="1926">
        <source>Title Block Field Name</source>
        <extracomment>Parameter label: check types 308, 311. Must differ from the other labels of the type.</extracomment>
        <translation>Title Block Field Name</translation>
    </message>
    <message id="1927">
        <source>Title Block Field Type</source>
        <extracomment>Parameter label: check type 308. Must differ from the other labels of the type.</extracomment>
        <translation>Title Block Field Type</translation>
    </message>
    <message id="1928">
        <source>Title Block Field Value</source>
        <extracomment>Parameter label: check type 308. Must differ from the other labels of the type.</extracomment>
        <translation>Title Block Field Value</translation>
    </message>
    <message id="1929">
        <source>Title Block Field Remark</source>
        <extracomment>Parameter label: check type 308. Must differ from the other labels of the type.</extracomment>
        <translation>Title Block Field Remark</translation>
    </message>
    <message id="1930">
        <source>Custom Size</source>
        <extracomment>Option: one of the sheet sizes. Must differ from the others.</extracomment>
        <translation>Custom Size</translation>
    </message>
    <message id="1931">
        <source>Unknown</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Unknown</translation>
    </message>
    <message id="1932">
        <source>No Solution Found</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>No Solution Found</translation>
    </message>
    <message id="1933">
        <source>Invalid Solution Found</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Invalid Solution Found</translation>
    </message>
    <message id="1934">
        <source>Automatic Solve Off</source>
        <extracomment>Option: one of the sketch states. Must differ from the others.</extracomment>
        <translation>Automatic Solve Off</translation>
    </message>
    <message id="1935">
        <source>Learn about Ruleward</source>
        <extracomment>Caption: link on the welcome page; opens the help.</extracomment>
        <translation>Learn about Ruleward</translation>
    </message>
    <message id="1936">
        <source>Reference Status</source>
        <extracomment>Parameter label: check type 107. Must differ from the other labels of the type.</extracomment>
        <translation>Reference Status</translation>
    </message>
    <message id="1937">
        <source> already exists in this standard. Do you want to replace it?</source>
        <extracomment>Question: Yes/No, on pasting a check of a type that the standard has. The name of the check stands in front of the text: keep the blank at its beginning.</extracomment>
        <translation> already exists in this standard. Do you want to replace it?</translation>
    </message>
    <message id="1938">
        <source>Ruleward Builder</source>
        <extracomment>Title: name of the application, shown as the title of message boxes.</extracomment>
        <translation>Ruleward Builder</translation>
    </message>
    <message id="1940">
        <source>values</source>
        <extracomment>Other: follows a count and a blank, as in "3 values", where a cell holds several pictures or colors.</extracomment>
        <translation>values</translation>
    </message>
    <message id="1941">
        <source>Operator</source>
        <extracomment>Heading: grids of custom properties and title block fields.</extracomment>
        <translation>Operator</translation>
    </message>
    <message id="1942">
        <source>Value</source>
        <extracomment>Heading: grids of custom properties and title block fields.</extracomment>
        <translation>Value</translation>
    </message>
    <message id="1943">
        <source>Name</source>
        <extracomment>Heading: grids of custom properties, title block fields, custom checks and layers.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="1944">
        <source>Ruleward Report</source>
        <extracomment>Title: title of the report page. No &amp; and no &lt;.</extracomment>
        <translation>Ruleward Report</translation>
    </message>
    <message id="1945">
        <source>Ruleward Standard</source>
        <extracomment>Title: main heading of the report. No &amp; and no &lt;.</extracomment>
        <translation>Ruleward Standard</translation>
    </message>
    <message id="1946">
        <source>Name</source>
        <extracomment>Heading: label in the report; name of the standard. No &amp; and no &lt;.</extracomment>
        <translation>Name</translation>
    </message>
    <message id="1947">
        <source>Created By</source>
        <extracomment>Heading: label in the report; author of the standard. No &amp; and no &lt;.</extracomment>
        <translation>Created By</translation>
    </message>
    <message id="1948">
        <source>Created On</source>
        <extracomment>Heading: label in the report; day the standard was made. No &amp; and no &lt;.</extracomment>
        <translation>Created On</translation>
    </message>
    <message id="1949">
        <source>Overridden Mass Properties</source>
        <extracomment>Check name: check type 118; also the caption of its pane.</extracomment>
        <translation>Overridden Mass Properties</translation>
    </message>
    <message id="1955">
        <source>Color</source>
        <extracomment>Heading: layer grid.</extracomment>
        <translation>Color</translation>
    </message>
    <message id="1957">
        <source>Dangling Dimensions</source>
        <extracomment>Button text: catalogue button of check type 313.</extracomment>
        <translation>Dangling Dimensions</translation>
    </message>
    <message id="1958">
        <source>Dangling Dimensions</source>
        <extracomment>Check name: check type 313; also the caption of its pane.</extracomment>
        <translation>Dangling Dimensions</translation>
    </message>
    <message id="1959">
        <source>Custom Checks</source>
        <extracomment>Button text: catalogue button of check type 121.</extracomment>
        <translation>Custom Checks</translation>
    </message>
    <message id="1960">
        <source>Line Style</source>
        <extracomment>Heading: layer grid.</extracomment>
        <translation>Line Style</translation>
    </message>
    <message id="1961">
        <source>Line Thickness</source>
        <extracomment>Heading: layer grid.</extracomment>
        <translation>Line Thickness</translation>
    </message>
    <message id="1963">
        <source>Type</source>
        <extracomment>Heading: grids of custom properties and title block fields.</extracomment>
        <translation>Type</translation>
    </message>
    <message id="1964">
        <source>Custom Checks</source>
        <extracomment>Check name: check types 121, 122; also the caption of its pane.</extracomment>
        <translation>Custom Checks</translation>
    </message>
    <message id="1965">
        <source>Interference</source>
        <extracomment>Button text: catalogue button of check type 607.</extracomment>
        <translation>Interference</translation>
    </message>
    <message id="1967">
        <source>Extension Line Gap</source>
        <extracomment>Button text: catalogue button of check type 314.</extracomment>
        <translation>Extension Line Gap</translation>
    </message>
    <message id="1968">
        <source>Required Value</source>
        <extracomment>Heading: summary page; the values that a check asks for.</extracomment>
        <translation>Required Value</translation>
    </message>
    <message id="1973">
        <source>Title Block Field</source>
        <extracomment>Check name: check type 311; occurs in files only.</extracomment>
        <translation>Title Block Field</translation>
    </message>
    <message id="1974">
        <source>A value can contain only one decimal point.</source>
        <extracomment>Message: a second decimal point in one value of a list or range.</extracomment>
        <translation>A value can contain only one decimal point.</translation>
    </message>
    <message id="1975">
        <source>Enter a value between the two commas.</source>
        <extracomment>Message: two commas in a row.</extracomment>
        <translation>Enter a value between the two commas.</translation>
    </message>
    <message id="1976">
        <source>The text cannot begin with a comma. Enter a value first.</source>
        <extracomment>Message: a comma at the very start.</extracomment>
        <translation>The text cannot begin with a comma. Enter a value first.</translation>
    </message>
    <message id="1977">
        <source>This character is not allowed. Enter digits and, if needed, a decimal point.</source>
        <extracomment>Message: a character that is not allowed in a value box.</extracomment>
        <translation>This character is not allowed. Enter digits and, if needed, a decimal point.</translation>
    </message>
    <message id="1978">
        <source>Enter only one value for this operator, with no more than one decimal point.</source>
        <extracomment>Message: a second decimal point in a single value, or more than one date where one is expected.</extracomment>
        <translation>Enter only one value for this operator, with no more than one decimal point.</translation>
    </message>
    <message id="1979">
        <source>Enter no more than two values for a range.</source>
        <extracomment>Message: a second comma in a range, or more than two dates in a range.</extracomment>
        <translation>Enter no more than two values for a range.</translation>
    </message>
    <message id="1980">
        <source>Select a valid operator first.</source>
        <extracomment>Message: no operator chosen, or an operator text that is not known.</extracomment>
        <translation>Select a valid operator first.</translation>
    </message>
    <message id="1983">
        <source>Documents</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Documents</translation>
    </message>
    <message id="1984">
        <source>Annotations</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Annotations</translation>
    </message>
    <message id="1985">
        <source>Dimensions</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Dimensions</translation>
    </message>
    <message id="1986">
        <source>Drawings</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Drawings</translation>
    </message>
    <message id="1987">
        <source>Parts</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Parts</translation>
    </message>
    <message id="1988">
        <source>Assemblies</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Assemblies</translation>
    </message>
    <message id="1989">
        <source>Features</source>
        <extracomment>Tooltip: tab of a check group.</extracomment>
        <translation>Features</translation>
    </message>
    <message id="1993">
        <source>Online tutorial</source>
        <extracomment>Caption: link on the welcome page.</extracomment>
        <translation>Online tutorial</translation>
    </message>
    <message id="1995">
        <source>Standard Hole Sizes</source>
        <extracomment>Check name: check type 703; also the caption of its pane.</extracomment>
        <translation>Standard Hole Sizes</translation>
    </message>
    <message id="1997">
        <source>µm</source>
        <extracomment>Unit: short form, written directly behind a value: micron. Do not translate.</extracomment>
        <translation>µm</translation>
    </message>
    <message id="1998">
        <source>Geometric tolerances must refer to existing datums.</source>
        <extracomment>Summary: what check type 301 asks for, on the summary page and in the report.</extracomment>
        <translation>Geometric tolerances must refer to existing datums.</translation>
    </message>
    <message id="1999">
        <source>All sketches must be fully defined.</source>
        <extracomment>Summary: what check type 702 asks for, on the summary page and in the report.</extracomment>
        <translation>All sketches must be fully defined.</translation>
    </message>
    <message id="2000">
        <source>All external references of the document must be up to date.</source>
        <extracomment>Summary: what check type 107 asks for, on the summary page and in the report.</extracomment>
        <translation>All external references of the document must be up to date.</translation>
    </message>
    <message id="2001">
        <source>The part must not contain feature errors.</source>
        <extracomment>Summary: what check type 701 asks for, on the summary page and in the report.</extracomment>
        <translation>The part must not contain feature errors.</translation>
    </message>
    <message id="2002">
        <source>Dimensions must not overlap.</source>
        <extracomment>Summary: what check type 406 asks for, on the summary page and in the report.</extracomment>
        <translation>Dimensions must not overlap.</translation>
    </message>
    <message id="2003">
        <source>Dimension values must not be overridden.</source>
        <extracomment>Summary: what check type 401 asks for, on the summary page and in the report.</extracomment>
        <translation>Dimension values must not be overridden.</translation>
    </message>
    <message id="2004">
        <source>The assembly must not contain mate errors.</source>
        <extracomment>Summary: what check type 602 asks for, on the summary page and in the report.</extracomment>
        <translation>The assembly must not contain mate errors.</translation>
    </message>
    <message id="2005">
        <source>Every component in the bill of materials must have a balloon.</source>
        <extracomment>Summary: what check type 309 asks for, on the summary page and in the report.</extracomment>
        <translation>Every component in the bill of materials must have a balloon.</translation>
    </message>
    <message id="2006">
        <source>Drawing views must not overlap.</source>
        <extracomment>Summary: what check type 307 asks for, on the summary page and in the report.</extracomment>
        <translation>Drawing views must not overlap.</translation>
    </message>
    <message id="2007">
        <source>No material database was found in this folder. Select another folder.</source>
        <extracomment>Message: the chosen folder holds no material database (.kvmat). May follow a quoted database name and a comma.</extracomment>
        <translation>No material database was found in this folder. Select another folder.</translation>
    </message>
    <message id="2008">
        <source>Material Database</source>
        <extracomment>Parameter label: check types 501, 601. Must differ from the other labels of the type.</extracomment>
        <translation>Material Database</translation>
    </message>
    <message id="2009">
        <source>A material of this check was not found in the material database. Do you want to continue?</source>
        <extracomment>Question: Yes/No, while a material check is shown.</extracomment>
        <translation>A material of this check was not found in the material database. Do you want to continue?</translation>
    </message>
    <message id="2010">
        <source>mm</source>
        <extracomment>Unit: short form, written directly behind a value: millimeter. Do not translate.</extracomment>
        <translation>mm</translation>
    </message>
    <message id="2011">
        <source>cm</source>
        <extracomment>Unit: short form, written directly behind a value: centimeter. Do not translate.</extracomment>
        <translation>cm</translation>
    </message>
    <message id="2012">
        <source>m</source>
        <extracomment>Unit: short form, written directly behind a value: meter. Do not translate.</extracomment>
        <translation>m</translation>
    </message>
    <message id="2013">
        <source>µin</source>
        <extracomment>Unit: short form, written directly behind a value: microinch. Do not translate.</extracomment>
        <translation>µin</translation>
    </message>
    <message id="2014">
        <source>mil</source>
        <extracomment>Unit: short form, written directly behind a value: mil. Do not translate.</extracomment>
        <translation>mil</translation>
    </message>
    <message id="2015">
        <source>in</source>
        <extracomment>Unit: short form, written directly behind a value: inch. Do not translate.</extracomment>
        <translation>in</translation>
    </message>
    <message id="2016">
        <source>ft</source>
        <extracomment>Unit: short form, written directly behind a value: foot. Do not translate.</extracomment>
        <translation>ft</translation>
    </message>
    <message id="2017">
        <source>Component Material</source>
        <extracomment>Caption: pane of check type 601.</extracomment>
        <translation>Component Material</translation>
    </message>
    <message id="2024">
        <source>Close &amp;All</source>
        <extracomment>Menu: Window menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Close &amp;All</translation>
    </message>
    <message id="2034">
        <source>Select a row to remove.</source>
        <extracomment>Message: remove row was pressed without a row selected.</extracomment>
        <translation>Select a row to remove.</translation>
    </message>
    <message id="2035">
        <source>Enter the name of the title block field first.</source>
        <extracomment>Message: another cell of a title block row was entered before its name.</extracomment>
        <translation>Enter the name of the title block field first.</translation>
    </message>
    <message id="2036">
        <source>Select a type first.</source>
        <extracomment>Message: the operator or value cell was entered before the type.</extracomment>
        <translation>Select a type first.</translation>
    </message>
    <message id="2037">
        <source>Enter the name of the property first.</source>
        <extracomment>Message: another cell of a custom property row was entered before its name.</extracomment>
        <translation>Enter the name of the property first.</translation>
    </message>
    <message id="2038">
        <source>This name is already used. Enter another name.</source>
        <extracomment>Message: duplicate name in a grid of properties, title block fields, custom checks or layers.</extracomment>
        <translation>This name is already used. Enter another name.</translation>
    </message>
    <message id="2040">
        <source>The file cannot be opened because it is not a valid standard.</source>
        <extracomment>Message: the file cannot be unpacked, or its content cannot be read.</extracomment>
        <translation>The file cannot be opened because it is not a valid standard.</translation>
    </message>
    <message id="2043">
        <source>Enter a value between 0.000001 and 1000000.</source>
        <extracomment>Message: a plain number out of bounds. Keep the figures.</extracomment>
        <translation>Enter a value between 0.000001 and 1000000.</translation>
    </message>
    <message id="2044">
        <source>Enter a valid date in the form MM/DD/YYYY.</source>
        <extracomment>Message: a date that is not valid. The order is month, day, year.</extracomment>
        <translation>Enter a valid date in the form MM/DD/YYYY.</translation>
    </message>
    <message id="2045">
        <source>D&amp;ocuments</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>D&amp;ocuments</translation>
    </message>
    <message id="2046">
        <source>&amp;Drafting Standard</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Drafting Standard</translation>
    </message>
    <message id="2047">
        <source>&amp;Arrowheads</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Arrowheads</translation>
    </message>
    <message id="2048">
        <source>&amp;Note Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Note Font</translation>
    </message>
    <message id="2049">
        <source>D&amp;imension Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>D&amp;imension Font</translation>
    </message>
    <message id="2050">
        <source>Detail View &amp;Label Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Detail View &amp;Label Font</translation>
    </message>
    <message id="2051">
        <source>Secti&amp;on View Label Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Secti&amp;on View Label Font</translation>
    </message>
    <message id="2052">
        <source>Weld S&amp;ymbol Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Weld S&amp;ymbol Font</translation>
    </message>
    <message id="2053">
        <source>Surfac&amp;e Finish Symbol Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Surfac&amp;e Finish Symbol Font</translation>
    </message>
    <message id="2054">
        <source>&amp;Balloon Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Balloon Font</translation>
    </message>
    <message id="2055">
        <source>Vie&amp;w Arrow Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Vie&amp;w Arrow Font</translation>
    </message>
    <message id="2056">
        <source>&amp;Table Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Table Font</translation>
    </message>
    <message id="2057">
        <source>Custom &amp;Properties</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Custom &amp;Properties</translation>
    </message>
    <message id="2058">
        <source>&amp;References Up to Date</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;References Up to Date</translation>
    </message>
    <message id="2059">
        <source>&amp;Help</source>
        <extracomment>Menu: title in the menu bar. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Help</translation>
    </message>
    <message id="2060">
        <source>&amp;Units</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Units</translation>
    </message>
    <message id="2061">
        <source>&amp;Annotations</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Annotations</translation>
    </message>
    <message id="2062">
        <source>&amp;Arrowheads</source>
        <extracomment>Menu: Checks &gt; Annotations menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Arrowheads</translation>
    </message>
    <message id="2063">
        <source>&amp;Font</source>
        <extracomment>Menu: Checks &gt; Annotations menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Font</translation>
    </message>
    <message id="2064">
        <source>&amp;Geometric Tolerance Datums</source>
        <extracomment>Menu: Checks &gt; Annotations menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Geometric Tolerance Datums</translation>
    </message>
    <message id="2065">
        <source>&amp;Dimensions</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Dimensions</translation>
    </message>
    <message id="2066">
        <source>Overridden &amp;Dimensions</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Overridden &amp;Dimensions</translation>
    </message>
    <message id="2067">
        <source>&amp;Arrowheads</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Arrowheads</translation>
    </message>
    <message id="2068">
        <source>&amp;Font</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Font</translation>
    </message>
    <message id="2069">
        <source>&amp;Units</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Units</translation>
    </message>
    <message id="2070">
        <source>&amp;Overlapping Dimensions</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Overlapping Dimensions</translation>
    </message>
    <message id="2071">
        <source>D&amp;rawings</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>D&amp;rawings</translation>
    </message>
    <message id="2072">
        <source>&amp;Sheet Format</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Sheet Format</translation>
    </message>
    <message id="2073">
        <source>&amp;Layers</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Layers</translation>
    </message>
    <message id="2074">
        <source>&amp;Overlapping Views</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Overlapping Views</translation>
    </message>
    <message id="2075">
        <source>&amp;Title Block</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Title Block</translation>
    </message>
    <message id="2076">
        <source>&amp;Bill of Materials Balloons</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Bill of Materials Balloons</translation>
    </message>
    <message id="2077">
        <source>&amp;Parts</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Parts</translation>
    </message>
    <message id="2078">
        <source>&amp;Part Material</source>
        <extracomment>Menu: Checks &gt; Parts menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Part Material</translation>
    </message>
    <message id="2079">
        <source>A&amp;ssemblies</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>A&amp;ssemblies</translation>
    </message>
    <message id="2080">
        <source>&amp;Component Material</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Component Material</translation>
    </message>
    <message id="2081">
        <source>Mate &amp;Errors</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Mate &amp;Errors</translation>
    </message>
    <message id="2082">
        <source>&amp;Fixed Components</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Fixed Components</translation>
    </message>
    <message id="2083">
        <source>External &amp;References</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>External &amp;References</translation>
    </message>
    <message id="2084">
        <source>&amp;Features</source>
        <extracomment>Menu: submenu of the Checks menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Features</translation>
    </message>
    <message id="2085">
        <source>Feature &amp;Errors</source>
        <extracomment>Menu: Checks &gt; Features menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Feature &amp;Errors</translation>
    </message>
    <message id="2086">
        <source>Fully &amp;Defined Sketches</source>
        <extracomment>Menu: Checks &gt; Features menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Fully &amp;Defined Sketches</translation>
    </message>
    <message id="2087">
        <source>&amp;New&#9;Ctrl+N</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;New&#9;Ctrl+N</translation>
    </message>
    <message id="2088">
        <source>&amp;Open...&#9;Ctrl+O</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Open...&#9;Ctrl+O</translation>
    </message>
    <message id="2089">
        <source>&amp;Save&#9;Ctrl+S</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Save&#9;Ctrl+S</translation>
    </message>
    <message id="2090">
        <source>&amp;Print...&#9;Ctrl+P</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Print...&#9;Ctrl+P</translation>
    </message>
    <message id="2091">
        <source>&amp;Close</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="2092">
        <source>Save &amp;As...</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Save &amp;As...</translation>
    </message>
    <message id="2093">
        <source>Print Pre&amp;view</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu. Always disabled.</extracomment>
        <translation>Print Pre&amp;view</translation>
    </message>
    <message id="2094">
        <source>Print Set&amp;up...</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Print Set&amp;up...</translation>
    </message>
    <message id="2095">
        <source>Recent File</source>
        <extracomment>Menu: File menu. Placeholder until files have been opened; the list of recent files replaces it.</extracomment>
        <translation>Recent File</translation>
    </message>
    <message id="2096">
        <source>E&amp;xit</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>E&amp;xit</translation>
    </message>
    <message id="2097">
        <source>&amp;Undo&#9;Ctrl+Z</source>
        <extracomment>Menu: Edit menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Undo&#9;Ctrl+Z</translation>
    </message>
    <message id="2098">
        <source>&amp;Redo&#9;Ctrl+Y</source>
        <extracomment>Menu: Edit menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Redo&#9;Ctrl+Y</translation>
    </message>
    <message id="2099">
        <source>Cu&amp;t&#9;Ctrl+X</source>
        <extracomment>Menu: Edit menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>Cu&amp;t&#9;Ctrl+X</translation>
    </message>
    <message id="2100">
        <source>&amp;Copy&#9;Ctrl+C</source>
        <extracomment>Menu: Edit menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Copy&#9;Ctrl+C</translation>
    </message>
    <message id="2101">
        <source>&amp;Paste&#9;Ctrl+V</source>
        <extracomment>Menu: Edit menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Paste&#9;Ctrl+V</translation>
    </message>
    <message id="2102">
        <source>An operator cannot be selected for the type Any. Select another type first.</source>
        <extracomment>Message: operator cell of a row whose type is "Any" (text 1632).</extracomment>
        <translation>An operator cannot be selected for the type Any. Select another type first.</translation>
    </message>
    <message id="2103">
        <source>&amp;Cascade</source>
        <extracomment>Menu: Window menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Cascade</translation>
    </message>
    <message id="2104">
        <source>&amp;Tile</source>
        <extracomment>Menu: Window menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Tile</translation>
    </message>
    <message id="2105">
        <source>A value cannot be entered for the type Any. Select another type first.</source>
        <extracomment>Message: value cell of a row whose type is "Any" (text 1632).</extracomment>
        <translation>A value cannot be entered for the type Any. Select another type first.</translation>
    </message>
    <message id="2106">
        <source>&amp;About Ruleward Builder...</source>
        <extracomment>Menu: Help menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;About Ruleward Builder...</translation>
    </message>
    <message id="2107">
        <source>&amp;File</source>
        <extracomment>Menu: title in the menu bar. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;File</translation>
    </message>
    <message id="2108">
        <source>&amp;Edit</source>
        <extracomment>Menu: title in the menu bar. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Edit</translation>
    </message>
    <message id="2109">
        <source>&amp;Checks</source>
        <extracomment>Menu: title in the menu bar. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Checks</translation>
    </message>
    <message id="2110">
        <source>&amp;Window</source>
        <extracomment>Menu: title in the menu bar. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Window</translation>
    </message>
    <message id="2114">
        <source>&amp;View Display Mode</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;View Display Mode</translation>
    </message>
    <message id="2115">
        <source>Layer (Single)</source>
        <extracomment>Check name: check type 306; occurs in files only.</extracomment>
        <translation>Layer (Single)</translation>
    </message>
    <message id="2116">
        <source>Custom Property (Single)</source>
        <extracomment>Check name: check type 106; occurs in files only.</extracomment>
        <translation>Custom Property (Single)</translation>
    </message>
    <message id="2117">
        <source>&amp;Help Topics&#9;F1</source>
        <extracomment>Menu: Help menu. &amp; stands before the access key, unique in the menu. Keep the tab and the shortcut behind it.</extracomment>
        <translation>&amp;Help Topics&#9;F1</translation>
    </message>
    <message id="2118">
        <source>&amp;Toolbar</source>
        <extracomment>Menu: only entry of the pop-up on the menu bar; shows or hides the main toolbar.</extracomment>
        <translation>&amp;Toolbar</translation>
    </message>
    <message id="2119">
        <source>Main Toolbar</source>
        <extracomment>Title: main toolbar while it floats.</extracomment>
        <translation>Main Toolbar</translation>
    </message>
    <message id="2120">
        <source>Layer Name</source>
        <extracomment>Check name: check type 305; occurs in files only.</extracomment>
        <translation>Layer Name</translation>
    </message>
    <message id="2121">
        <source>&amp;Welcome Page...</source>
        <extracomment>Menu: Help menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Welcome Page...</translation>
    </message>
    <message id="2122">
        <source>&amp;Merge Standards...</source>
        <extracomment>Menu: File menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Merge Standards...</translation>
    </message>
    <message id="2123">
        <source>Ruleward Standard (*.kvstd)|*.kvstd||</source>
        <extracomment>Filter: file types of standards; name and patterns in turn, separated by |. Translate the names only, keep the order.</extracomment>
        <translation>Ruleward Standard (*.kvstd)|*.kvstd||</translation>
    </message>
    <message id="2124">
        <source>Select only one standard to move up.</source>
        <extracomment>Message: move up with several rows selected in the merge dialog.</extracomment>
        <translation>Select only one standard to move up.</translation>
    </message>
    <message id="2125">
        <source>Select only one standard to move down.</source>
        <extracomment>Message: move down with several rows selected in the merge dialog.</extracomment>
        <translation>Select only one standard to move down.</translation>
    </message>
    <message id="2126">
        <source>Select a standard to move up.</source>
        <extracomment>Message: move up with no row selected in the merge dialog.</extracomment>
        <translation>Select a standard to move up.</translation>
    </message>
    <message id="2127">
        <source>Select a standard to move down.</source>
        <extracomment>Message: move down with no row selected in the merge dialog.</extracomment>
        <translation>Select a standard to move down.</translation>
    </message>
    <message id="2128">
        <source>Add at least two standards to merge.</source>
        <extracomment>Message: OK in the merge dialog with fewer than two standards listed.</extracomment>
        <translation>Add at least two standards to merge.</translation>
    </message>
    <message id="2129">
        <source>There is no valid standard to merge. The last file is not a standard: </source>
        <extracomment>Message: no file of the merge is a standard. A path follows the text: keep the blank at its end.</extracomment>
        <translation>There is no valid standard to merge. The last file is not a standard: </translation>
    </message>
    <message id="2130">
        <source>The file is not a valid standard and is skipped: </source>
        <extracomment>Message: a file of the merge is no standard. A path follows the text: keep the blank at its end.</extracomment>
        <translation>The file is not a valid standard and is skipped: </translation>
    </message>
    <message id="2131">
        <source>A check without a type was found. The rest of this standard is skipped.</source>
        <extracomment>Message: a source of the merge has a check that names no type.</extracomment>
        <translation>A check without a type was found. The rest of this standard is skipped.</translation>
    </message>
    <message id="2138">
        <source>Merge Standards</source>
        <extracomment>Title: merge dialog, and the text above its list.</extracomment>
        <translation>Merge Standards</translation>
    </message>
    <message id="2139">
        <source>&amp;Add...</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>&amp;Add...</translation>
    </message>
    <message id="2140">
        <source>&amp;Remove</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>&amp;Remove</translation>
    </message>
    <message id="2141">
        <source>Move &amp;Up</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>Move &amp;Up</translation>
    </message>
    <message id="2142">
        <source>Move &amp;Down</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>Move &amp;Down</translation>
    </message>
    <message id="2143">
        <source>OK</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="2144">
        <source>Cancel</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="2145">
        <source>&amp;Help</source>
        <extracomment>Caption: button of the merge dialog. Access keys are unique in the dialog.</extracomment>
        <translation>&amp;Help</translation>
    </message>
    <message id="2148">
        <source>&amp;Spelling</source>
        <extracomment>Menu: Checks &gt; Annotations menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Spelling</translation>
    </message>
    <message id="2149">
        <source>The document must not contain spelling errors.</source>
        <extracomment>Summary: what check type 203 asks for, on the summary page and in the report.</extracomment>
        <translation>The document must not contain spelling errors.</translation>
    </message>
    <message id="2150">
        <source>Overridden &amp;Mass Properties</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Overridden &amp;Mass Properties</translation>
    </message>
    <message id="2151">
        <source>Mass properties must not be overridden.</source>
        <extracomment>Summary: what check type 118 asks for, on the summary page and in the report.</extracomment>
        <translation>Mass properties must not be overridden.</translation>
    </message>
    <message id="2160">
        <source>Standard &amp;Hole Sizes</source>
        <extracomment>Menu: Checks &gt; Features menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Standard &amp;Hole Sizes</translation>
    </message>
    <message id="2161">
        <source>Holes must have standard sizes.</source>
        <extracomment>Summary: what check type 703 asks for, on the summary page and in the report.</extracomment>
        <translation>Holes must have standard sizes.</translation>
    </message>
    <message id="2185">
        <source>Geometric Tolerance Font (Document)</source>
        <extracomment>Check name: check type 119; also the caption of its pane.</extracomment>
        <translation>Geometric Tolerance Font (Document)</translation>
    </message>
    <message id="2187">
        <source>&amp;Geometric Tolerance Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Geometric Tolerance Font</translation>
    </message>
    <message id="2189">
        <source>Auxiliary View Label Font (Document)</source>
        <extracomment>Check name: check type 120; also the caption of its pane.</extracomment>
        <translation>Auxiliary View Label Font (Document)</translation>
    </message>
    <message id="2190">
        <source>Auxiliary &amp;View Label Font</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Auxiliary &amp;View Label Font</translation>
    </message>
    <message id="2191">
        <source>Enter a value between 0.0000001 and 1000000 millimeters.</source>
        <extracomment>Message: length out of bounds, unit millimeter. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0000001 and 1000000 millimeters.</translation>
    </message>
    <message id="2192">
        <source>Enter a value between 0.00000001 and 100000 centimeters.</source>
        <extracomment>Message: length out of bounds, unit centimeter. Keep the figures.</extracomment>
        <translation>Enter a value between 0.00000001 and 100000 centimeters.</translation>
    </message>
    <message id="2193">
        <source>Enter a value between 0.0000000001 and 1000 meters.</source>
        <extracomment>Message: length out of bounds, unit meter. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0000000001 and 1000 meters.</translation>
    </message>
    <message id="2194">
        <source>Enter a value between 0.0000000039 and 39370.07874016 inches.</source>
        <extracomment>Message: length out of bounds, unit inch. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0000000039 and 39370.07874016 inches.</translation>
    </message>
    <message id="2195">
        <source>Enter a value between 0.0000000003 and 3280.83989501 feet.</source>
        <extracomment>Message: length out of bounds, unit foot. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0000000003 and 3280.83989501 feet.</translation>
    </message>
    <message id="2196">
        <source>Enter a value between 0.0000000039 and 3280 feet and inches.</source>
        <extracomment>Message: length out of bounds, unit feet and inches. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0000000039 and 3280 feet and inches.</translation>
    </message>
    <message id="2197">
        <source>Enter a value between 1 and 10000000000000 angstroms.</source>
        <extracomment>Message: length out of bounds, unit angstrom. Keep the figures.</extracomment>
        <translation>Enter a value between 1 and 10000000000000 angstroms.</translation>
    </message>
    <message id="2198">
        <source>Enter a value between 0.1 and 1000000000000 nanometers.</source>
        <extracomment>Message: length out of bounds, unit nanometer. Keep the figures.</extracomment>
        <translation>Enter a value between 0.1 and 1000000000000 nanometers.</translation>
    </message>
    <message id="2199">
        <source>Enter a value within the range allowed for the current unit.</source>
        <extracomment>Message: length out of bounds, units micron and mil, whose bounds differ.</extracomment>
        <translation>Enter a value within the range allowed for the current unit.</translation>
    </message>
    <message id="2200">
        <source>Enter a value between 0.000003937 and 39370078.74015749 mils.</source>
        <extracomment>Message: length out of bounds, unit mil. Kept for completeness; text 2199 is shown instead. Keep the figures.</extracomment>
        <translation>Enter a value between 0.000003937 and 39370078.74015749 mils.</translation>
    </message>
    <message id="2201">
        <source>Enter a value between 0.0039370079 and 39370078740.157486 microinches.</source>
        <extracomment>Message: length out of bounds, unit microinch. Keep the figures.</extracomment>
        <translation>Enter a value between 0.0039370079 and 39370078740.157486 microinches.</translation>
    </message>
    <message id="2202">
        <source>Description</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Description</translation>
    </message>
    <message id="2203">
        <source>Part Number</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Part Number</translation>
    </message>
    <message id="2205">
        <source>Number</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Number</translation>
    </message>
    <message id="2206">
        <source>Revision</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Revision</translation>
    </message>
    <message id="2207">
        <source>Material</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Material</translation>
    </message>
    <message id="2208">
        <source>Finish</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Finish</translation>
    </message>
    <message id="2209">
        <source>Weight</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Weight</translation>
    </message>
    <message id="2210">
        <source>Cost</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Cost</translation>
    </message>
    <message id="2211">
        <source>Author</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Author</translation>
    </message>
    <message id="2212">
        <source>Keywords</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Keywords</translation>
    </message>
    <message id="2213">
        <source>Comments</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Comments</translation>
    </message>
    <message id="2214">
        <source>Subject</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Subject</translation>
    </message>
    <message id="2215">
        <source>Project</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Project</translation>
    </message>
    <message id="2216">
        <source>Department</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Department</translation>
    </message>
    <message id="2217">
        <source>Division</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Division</translation>
    </message>
    <message id="2218">
        <source>Company Name</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Company Name</translation>
    </message>
    <message id="2219">
        <source>Customer</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Customer</translation>
    </message>
    <message id="2220">
        <source>Supplier</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Supplier</translation>
    </message>
    <message id="2221">
        <source>Supplier Part Number</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Supplier Part Number</translation>
    </message>
    <message id="2222">
        <source>Drawn By</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Drawn By</translation>
    </message>
    <message id="2223">
        <source>Drawn Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Drawn Date</translation>
    </message>
    <message id="2224">
        <source>Checked By</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Checked By</translation>
    </message>
    <message id="2225">
        <source>Checked Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Checked Date</translation>
    </message>
    <message id="2226">
        <source>Approved By</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Approved By</translation>
    </message>
    <message id="2227">
        <source>Approved Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Approved Date</translation>
    </message>
    <message id="2228">
        <source>Manufacturing Approval</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Manufacturing Approval</translation>
    </message>
    <message id="2229">
        <source>Manufacturing Approval Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Manufacturing Approval Date</translation>
    </message>
    <message id="2230">
        <source>Quality Approval</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Quality Approval</translation>
    </message>
    <message id="2231">
        <source>Quality Approval Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Quality Approval Date</translation>
    </message>
    <message id="2232">
        <source>Document Number</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Document Number</translation>
    </message>
    <message id="2233">
        <source>Drawing Size</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Drawing Size</translation>
    </message>
    <message id="2234">
        <source>Sheet Scale</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Sheet Scale</translation>
    </message>
    <message id="2235">
        <source>Change Number</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Change Number</translation>
    </message>
    <message id="2236">
        <source>Change Date</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Change Date</translation>
    </message>
    <message id="2237">
        <source>Status</source>
        <extracomment>Option: usual name of a custom property, offered in the name box. Must differ from the others.</extracomment>
        <translation>Status</translation>
    </message>
    <message id="2240">
        <source>Add Font Checks</source>
        <extracomment>Title: dialog that adds several document font checks at once.</extracomment>
        <translation>Add Font Checks</translation>
    </message>
    <message id="2243">
        <source>&amp;Suppressed Components</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Suppressed Components</translation>
    </message>
    <message id="2244">
        <source>&amp;Suppressed Features</source>
        <extracomment>Menu: Checks &gt; Features menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Suppressed Features</translation>
    </message>
    <message id="2250">
        <source>The assembly must not contain suppressed components.</source>
        <extracomment>Summary: what check type 606 asks for, on the summary page and in the report.</extracomment>
        <translation>The assembly must not contain suppressed components.</translation>
    </message>
    <message id="2251">
        <source>The part must not contain suppressed features.</source>
        <extracomment>Summary: what check type 704 asks for, on the summary page and in the report.</extracomment>
        <translation>The part must not contain suppressed features.</translation>
    </message>
    <message id="2260">
        <source>Criticality</source>
        <extracomment>Heading: summary page and custom check grid.</extracomment>
        <translation>Criticality</translation>
    </message>
    <message id="2261">
        <source>Parameter</source>
        <extracomment>Heading: parameter column of the summary page; second column of the report. No &amp; and no &lt;.</extracomment>
        <translation>Parameter</translation>
    </message>
    <message id="2262">
        <source>&amp;Dangling Dimensions</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Dangling Dimensions</translation>
    </message>
    <message id="2264">
        <source>&amp;Replaced Dimension Text</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Replaced Dimension Text</translation>
    </message>
    <message id="2265">
        <source>&amp;Text Alignment</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Text Alignment</translation>
    </message>
    <message id="2266">
        <source>&amp;Precision</source>
        <extracomment>Menu: Checks &gt; Dimensions menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Precision</translation>
    </message>
    <message id="2267">
        <source>Low</source>
        <extracomment>Criticality: one of the four criticalities. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Low</translation>
    </message>
    <message id="2268">
        <source>Medium</source>
        <extracomment>Criticality: one of the four criticalities. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Medium</translation>
    </message>
    <message id="2269">
        <source>High</source>
        <extracomment>Criticality: one of the four criticalities. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>High</translation>
    </message>
    <message id="2270">
        <source>Critical</source>
        <extracomment>Criticality: one of the four criticalities. Also names its picture file in a report: unique among all pictures and valid as a file name.</extracomment>
        <translation>Critical</translation>
    </message>
    <message id="2271">
        <source>Replaced Dimension Text</source>
        <extracomment>Check name: check type 407; also the caption of its pane. Also the label of its parameter.</extracomment>
        <translation>Replaced Dimension Text</translation>
    </message>
    <message id="2272">
        <source>Dimension Text Alignment</source>
        <extracomment>Check name: check type 408; also the caption of its pane.</extracomment>
        <translation>Dimension Text Alignment</translation>
    </message>
    <message id="2273">
        <source>Dimension Precision</source>
        <extracomment>Check name: check type 409; also the caption of its pane.</extracomment>
        <translation>Dimension Precision</translation>
    </message>
    <message id="2274">
        <source>Linear Dimension Text</source>
        <extracomment>Parameter label: check type 408. Must differ from the other labels of the type.</extracomment>
        <translation>Linear Dimension Text</translation>
    </message>
    <message id="2275">
        <source>Angular Dimension Text</source>
        <extracomment>Parameter label: check type 408. Must differ from the other labels of the type.</extracomment>
        <translation>Angular Dimension Text</translation>
    </message>
    <message id="2276">
        <source>Radial Dimension Text</source>
        <extracomment>Parameter label: check type 408. Must differ from the other labels of the type.</extracomment>
        <translation>Radial Dimension Text</translation>
    </message>
    <message id="2277">
        <source>Chamfer Dimension Text</source>
        <extracomment>Parameter label: check type 408. Must differ from the other labels of the type.</extracomment>
        <translation>Chamfer Dimension Text</translation>
    </message>
    <message id="2278">
        <source>The original dimension text must not be replaced.</source>
        <extracomment>Summary: what check type 407 asks for, on the summary page and in the report.</extracomment>
        <translation>The original dimension text must not be replaced.</translation>
    </message>
    <message id="2281">
        <source>Linear Tolerance Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Linear Tolerance Precision</translation>
    </message>
    <message id="2282">
        <source>Linear Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Linear Precision</translation>
    </message>
    <message id="2283">
        <source>Dual Tolerance Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Tolerance Precision</translation>
    </message>
    <message id="2284">
        <source>Dual Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Dual Precision</translation>
    </message>
    <message id="2285">
        <source>None</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>None</translation>
    </message>
    <message id="2286">
        <source>0.1</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.1</translation>
    </message>
    <message id="2287">
        <source>0.12</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.12</translation>
    </message>
    <message id="2288">
        <source>0.123</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.123</translation>
    </message>
    <message id="2289">
        <source>The drawing must not contain dangling dimensions.</source>
        <extracomment>Summary: what check type 313 asks for, on the summary page and in the report.</extracomment>
        <translation>The drawing must not contain dangling dimensions.</translation>
    </message>
    <message id="2291">
        <source>&amp;Interference</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Interference</translation>
    </message>
    <message id="2292">
        <source>&amp;Extension Line Gap</source>
        <extracomment>Menu: Checks &gt; Drawings menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Extension Line Gap</translation>
    </message>
    <message id="2293">
        <source>Visible Gap Distance</source>
        <extracomment>Parameter label: check type 314. Must differ from the other labels of the type.</extracomment>
        <translation>Visible Gap Distance</translation>
    </message>
    <message id="2294">
        <source>Visible Gap Extension</source>
        <extracomment>Parameter label: check type 314. Must differ from the other labels of the type.</extracomment>
        <translation>Visible Gap Extension</translation>
    </message>
    <message id="2295">
        <source>Show All Checks</source>
        <extracomment>Button text: display toolbar; shows the checks of all groups or of the selected one.</extracomment>
        <translation>Show All Checks</translation>
    </message>
    <message id="2296">
        <source>Show the checks of all groups</source>
        <extracomment>Tooltip: display toolbar button while only the selected group is shown.</extracomment>
        <translation>Show the checks of all groups</translation>
    </message>
    <message id="2297">
        <source>Show only the checks of the selected group</source>
        <extracomment>Tooltip: display toolbar button while all groups are shown.</extracomment>
        <translation>Show only the checks of the selected group</translation>
    </message>
    <message id="2298">
        <source>All Documents</source>
        <extracomment>Option: document type of a custom check. Must differ from the others.</extracomment>
        <translation>All Documents</translation>
    </message>
    <message id="2299">
        <source>Part</source>
        <extracomment>Option: document type of a custom check. Must differ from the others.</extracomment>
        <translation>Part</translation>
    </message>
    <message id="2300">
        <source>Drawing</source>
        <extracomment>Option: document type of a custom check. Must differ from the others.</extracomment>
        <translation>Drawing</translation>
    </message>
    <message id="2301">
        <source>Assembly</source>
        <extracomment>Option: document type of a custom check. Must differ from the others.</extracomment>
        <translation>Assembly</translation>
    </message>
    <message id="2302">
        <source>Virtual &amp;Sharps</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>Virtual &amp;Sharps</translation>
    </message>
    <message id="2307">
        <source>Linear Upper Tolerance</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Linear Upper Tolerance</translation>
    </message>
    <message id="2308">
        <source>Linear Lower Tolerance</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Linear Lower Tolerance</translation>
    </message>
    <message id="2309">
        <source>Angular Upper Tolerance</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Angular Upper Tolerance</translation>
    </message>
    <message id="2310">
        <source>Angular Lower Tolerance</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Angular Lower Tolerance</translation>
    </message>
    <message id="2311">
        <source>Check Angular Dimensions</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>Check Angular Dimensions</translation>
    </message>
    <message id="2312">
        <source>Check Linear Dimensions</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>Check Linear Dimensions</translation>
    </message>
    <message id="2314">
        <source>Precision Comparison</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Precision Comparison</translation>
    </message>
    <message id="2315">
        <source>Compare Tolerance Values</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>Compare Tolerance Values</translation>
    </message>
    <message id="2320">
        <source>Compare Precision Settings</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>Compare Precision Settings</translation>
    </message>
    <message id="2389">
        <source>0.1234</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.1234</translation>
    </message>
    <message id="2390">
        <source>0.12345</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.12345</translation>
    </message>
    <message id="2391">
        <source>0.123456</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.123456</translation>
    </message>
    <message id="2392">
        <source>0.1234567</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.1234567</translation>
    </message>
    <message id="2393">
        <source>0.12345678</source>
        <extracomment>Option: one of the decimal precision. Must differ from the others.</extracomment>
        <translation>0.12345678</translation>
    </message>
    <message id="2394">
        <source>Definition of the Standard</source>
        <extracomment>Title: second heading of the report. No &amp; and no &lt;.</extracomment>
        <translation>Definition of the Standard</translation>
    </message>
    <message id="2395">
        <source>Check</source>
        <extracomment>Heading: check column of the summary page; first column of the report. No &amp; and no &lt;.</extracomment>
        <translation>Check</translation>
    </message>
    <message id="2396">
        <source>&amp;Bend Table</source>
        <extracomment>Menu: Checks &gt; Parts menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Bend Table</translation>
    </message>
    <message id="2397">
        <source>Bend Tables (*.xls;*.btl)|*.xls;*.btl||</source>
        <extracomment>Filter: file types of bend tables; name and patterns in turn, separated by |. Translate the names only, keep the order.</extracomment>
        <translation>Bend Tables (*.xls;*.btl)|*.xls;*.btl||</translation>
    </message>
    <message id="2398">
        <source>All Documents (*.kvprt;*.kvasm;*.kvdrw;*.dwg)|*.kvprt;*.kvasm;*.kvdrw;*.dwg|Parts (*.kvprt;*.prt)|*.kvprt;*.prt|Assemblies (*.kvasm;*.asm)|*.kvasm;*.asm|Drawings (*.kvdrw;*.drw)|*.kvdrw;*.drw|DWG Drawings (*.dwg)|*.dwg||</source>
        <extracomment>Filter: file types of documents to learn from; name and patterns in turn, separated by |. Translate the names only, keep the order.</extracomment>
        <translation>All Documents (*.kvprt;*.kvasm;*.kvdrw;*.dwg)|*.kvprt;*.kvasm;*.kvdrw;*.dwg|Parts (*.kvprt;*.prt)|*.kvprt;*.prt|Assemblies (*.kvasm;*.asm)|*.kvasm;*.asm|Drawings (*.kvdrw;*.drw)|*.kvdrw;*.drw|DWG Drawings (*.dwg)|*.dwg||</translation>
    </message>
    <message id="2401">
        <source>The following files are not valid standards:</source>
        <extracomment>Message: files left out of a merge. Their names follow, one a line.</extracomment>
        <translation>The following files are not valid standards:</translation>
    </message>
    <message id="2402">
        <source>Checks replaced by a later standard:</source>
        <extracomment>Message: checks replaced in a merge. One line for each follows.</extracomment>
        <translation>Checks replaced by a later standard:</translation>
    </message>
    <message id="2403">
        <source>The file %1 is in use and cannot be replaced. Choose another name.</source>
        <extracomment>Message: the target of Save As is locked. %1 is its path.</extracomment>
        <translation>The file %1 is in use and cannot be replaced. Choose another name.</translation>
    </message>
    <message id="2404">
        <source>Angular Tolerance Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Angular Tolerance Precision</translation>
    </message>
    <message id="2405">
        <source>Angular Precision</source>
        <extracomment>Parameter label: check type 409. Must differ from the other labels of the type.</extracomment>
        <translation>Angular Precision</translation>
    </message>
    <message id="2407">
        <source>&amp;Custom Checks</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Custom Checks</translation>
    </message>
    <message id="2409">
        <source>This standard was saved with version %1 and cannot be opened with version %2. Use a later version of Ruleward Builder.</source>
        <extracomment>Message: the file is of a later version. %1 is the file's version, %2 the version of this application.</extracomment>
        <translation>This standard was saved with version %1 and cannot be opened with version %2. Use a later version of Ruleward Builder.</translation>
    </message>
    <message id="2410">
        <source>The standard %1 was saved with an earlier version. It will be converted when you save it.</source>
        <extracomment>Message: the file is of an earlier version. %1 is its path.</extracomment>
        <translation>The standard %1 was saved with an earlier version. It will be converted when you save it.</translation>
    </message>
    <message id="2415">
        <source>The macro file was not found or cannot be read.</source>
        <extracomment>Tooltip: macro cell whose file is missing or unreadable.</extracomment>
        <translation>The macro file was not found or cannot be read.</translation>
    </message>
    <message id="2418">
        <source>Kortavo could not be started or reached. Start Kortavo and try again.</source>
        <extracomment>Message: the CAD system is needed for the command but does not answer.</extracomment>
        <translation>Kortavo could not be started or reached. Start Kortavo and try again.</translation>
    </message>
    <message id="2419">
        <source>The correction value does not satisfy the required value. Enter another correction value.</source>
        <extracomment>Message: the correction value that was entered would itself fail the check.</extracomment>
        <translation>The correction value does not satisfy the required value. Enter another correction value.</translation>
    </message>
    <message id="2422">
        <source>Custom</source>
        <extracomment>Option: one of the drafting standards; stands for the name that the user enters. Must differ from the others.</extracomment>
        <translation>Custom</translation>
    </message>
    <message id="2424">
        <source>File Locations</source>
        <extracomment>Button text: catalogue button of check type 124.</extracomment>
        <translation>File Locations</translation>
    </message>
    <message id="2425">
        <source>File Locations</source>
        <extracomment>Check name: check types 124, 127; also the caption of its pane.</extracomment>
        <translation>File Locations</translation>
    </message>
    <message id="2426">
        <source>&amp;File Locations</source>
        <extracomment>Menu: Checks &gt; Documents menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;File Locations</translation>
    </message>
    <message id="2427">
        <source>File Location (Templates)</source>
        <extracomment>Check name: check type 126; occurs in files only.</extracomment>
        <translation>File Location (Templates)</translation>
    </message>
    <message id="2428">
        <source>File Location (Settings)</source>
        <extracomment>Check name: check type 125; occurs in files only.</extracomment>
        <translation>File Location (Settings)</translation>
    </message>
    <message id="2429">
        <source>File Location (Libraries)</source>
        <extracomment>Check name: check type 128; occurs in files only.</extracomment>
        <translation>File Location (Libraries)</translation>
    </message>
    <message id="2430">
        <source>Part Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Part Library</translation>
    </message>
    <message id="2431">
        <source>Document Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Document Templates</translation>
    </message>
    <message id="2432">
        <source>Sheet Formats</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Sheet Formats</translation>
    </message>
    <message id="2433">
        <source>Symbol Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Symbol Library</translation>
    </message>
    <message id="2434">
        <source>Drafting Standards</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Drafting Standards</translation>
    </message>
    <message id="2435">
        <source>Bill of Materials Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Bill of Materials Templates</translation>
    </message>
    <message id="2436">
        <source>Custom Property Files</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Custom Property Files</translation>
    </message>
    <message id="2437">
        <source>Design Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Design Library</translation>
    </message>
    <message id="2438">
        <source>Block Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Block Library</translation>
    </message>
    <message id="2439">
        <source>Dimension Styles</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Dimension Styles</translation>
    </message>
    <message id="2440">
        <source>General Table Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>General Table Templates</translation>
    </message>
    <message id="2441">
        <source>Hole Table Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Hole Table Templates</translation>
    </message>
    <message id="2442">
        <source>Line Style Definitions</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Line Style Definitions</translation>
    </message>
    <message id="2443">
        <source>Macros</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Macros</translation>
    </message>
    <message id="2444">
        <source>Material Databases</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Material Databases</translation>
    </message>
    <message id="2445">
        <source>Revision Table Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Revision Table Templates</translation>
    </message>
    <message id="2446">
        <source>Title Block Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Title Block Templates</translation>
    </message>
    <message id="2447">
        <source>Weld Table Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Weld Table Templates</translation>
    </message>
    <message id="2448">
        <source>Punch Table Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Punch Table Templates</translation>
    </message>
    <message id="2449">
        <source>Texture Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Texture Library</translation>
    </message>
    <message id="2450">
        <source>Spelling Dictionaries</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Spelling Dictionaries</translation>
    </message>
    <message id="2451">
        <source>Appearance Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Appearance Library</translation>
    </message>
    <message id="2452">
        <source>Color Swatches</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Color Swatches</translation>
    </message>
    <message id="2453">
        <source>Scene Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Scene Library</translation>
    </message>
    <message id="2454">
        <source>Frame Profiles</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Frame Profiles</translation>
    </message>
    <message id="2455">
        <source>Report Templates</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Report Templates</translation>
    </message>
    <message id="2456">
        <source>Hole Callout Formats</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Hole Callout Formats</translation>
    </message>
    <message id="2457">
        <source>Thread Profiles</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Thread Profiles</translation>
    </message>
    <message id="2458">
        <source>Referenced Documents</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Referenced Documents</translation>
    </message>
    <message id="2459">
        <source>Feature Library</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Feature Library</translation>
    </message>
    <message id="2460">
        <source>Journal Files</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Journal Files</translation>
    </message>
    <message id="2461">
        <source>Export Settings</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Export Settings</translation>
    </message>
    <message id="2462">
        <source>Web Folders</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Web Folders</translation>
    </message>
    <message id="2463">
        <source>Add a folder</source>
        <extracomment>Tooltip: add button of the file locations pane.</extracomment>
        <translation>Add a folder</translation>
    </message>
    <message id="2464">
        <source>Remove the selected folders</source>
        <extracomment>Tooltip: remove button of the file locations pane.</extracomment>
        <translation>Remove the selected folders</translation>
    </message>
    <message id="2465">
        <source>Move the selected folder up</source>
        <extracomment>Tooltip: move-up button of the file locations pane.</extracomment>
        <translation>Move the selected folder up</translation>
    </message>
    <message id="2466">
        <source>Move the selected folder down</source>
        <extracomment>Tooltip: move-down button of the file locations pane.</extracomment>
        <translation>Move the selected folder down</translation>
    </message>
    <message id="2467">
        <source>Folders of the selected file type</source>
        <extracomment>Tooltip: list of the file locations pane.</extracomment>
        <translation>Folders of the selected file type</translation>
    </message>
    <message id="2473">
        <source>File Type</source>
        <extracomment>Parameter label: check types 124 to 126, 128. Must differ from the other labels of the type.</extracomment>
        <translation>File Type</translation>
    </message>
    <message id="2474">
        <source>Folders</source>
        <extracomment>Parameter label: check type 124. Must differ from the other labels of the type.</extracomment>
        <translation>Folders</translation>
    </message>
    <message id="2475">
        <source>This folder is already in the list.</source>
        <extracomment>Message: the folder to be added is listed already.</extracomment>
        <translation>This folder is already in the list.</translation>
    </message>
    <message id="2476">
        <source>Include Subfolders</source>
        <extracomment>Parameter label: check type 124. Must differ from the other labels of the type.</extracomment>
        <translation>Include Subfolders</translation>
    </message>
    <message id="2477">
        <source>Folder Rules</source>
        <extracomment>Parameter label: check type 127. Must differ from the other labels of the type.</extracomment>
        <translation>Folder Rules</translation>
    </message>
    <message id="2478">
        <source>Selected File Type</source>
        <extracomment>Parameter label: check type 127. Must differ from the other labels of the type.</extracomment>
        <translation>Selected File Type</translation>
    </message>
    <message id="2479">
        <source>Template Folders</source>
        <extracomment>Parameter label: check type 126. Must differ from the other labels of the type.</extracomment>
        <translation>Template Folders</translation>
    </message>
    <message id="2480">
        <source>Settings Folders</source>
        <extracomment>Parameter label: check type 125. Must differ from the other labels of the type.</extracomment>
        <translation>Settings Folders</translation>
    </message>
    <message id="2481">
        <source>Library Folders</source>
        <extracomment>Parameter label: check type 128. Must differ from the other labels of the type.</extracomment>
        <translation>Library Folders</translation>
    </message>
    <message id="2482">
        <source>Folders Are in This Order</source>
        <extracomment>Option: one of the folder rules. Must differ from the others.</extracomment>
        <translation>Folders Are in This Order</translation>
    </message>
    <message id="2483">
        <source>All Folders Are Listed</source>
        <extracomment>Option: one of the folder rules. Must differ from the others.</extracomment>
        <translation>All Folders Are Listed</translation>
    </message>
    <message id="2484">
        <source>No Other Folders Are Listed</source>
        <extracomment>Option: one of the folder rules. Must differ from the others.</extracomment>
        <translation>No Other Folders Are Listed</translation>
    </message>
    <message id="2485">
        <source>Bend Tables</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Bend Tables</translation>
    </message>
    <message id="2486">
        <source>Gauge Tables</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Gauge Tables</translation>
    </message>
    <message id="2487">
        <source>Bend Calculation Tables</source>
        <extracomment>Option: one of the file location types. Must differ from the others.</extracomment>
        <translation>Bend Calculation Tables</translation>
    </message>
    <message id="2489">
        <source>Sheet Format Comparison</source>
        <extracomment>Parameter label: check type 302. Must differ from the other labels of the type.</extracomment>
        <translation>Sheet Format Comparison</translation>
    </message>
    <message id="2490">
        <source>Compare File Name Only</source>
        <extracomment>Option: one of the sheet format comparisons. Must differ from the others.</extracomment>
        <translation>Compare File Name Only</translation>
    </message>
    <message id="2491">
        <source>Compare Full Path</source>
        <extracomment>Option: one of the sheet format comparisons. Must differ from the others.</extracomment>
        <translation>Compare Full Path</translation>
    </message>
    <message id="2496">
        <source>Sheet Formats (*.kvdrt)|*.kvdrt||</source>
        <extracomment>Filter: file types of sheet formats; name and patterns in turn, separated by |. Translate the names only, keep the order.</extracomment>
        <translation>Sheet Formats (*.kvdrt)|*.kvdrt||</translation>
    </message>
    <message id="2498">
        <source>Sheet Format File</source>
        <extracomment>Parameter label: check type 302. Must differ from the other labels of the type.</extracomment>
        <translation>Sheet Format File</translation>
    </message>
    <message id="2500">
        <source>Feature Positioning</source>
        <extracomment>Check name: check type 705; also the caption of its pane.</extracomment>
        <translation>Feature Positioning</translation>
    </message>
    <message id="2501">
        <source>&amp;Feature Positioning</source>
        <extracomment>Menu: Checks &gt; Features menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Feature Positioning</translation>
    </message>
    <message id="2502">
        <source>Feature Position</source>
        <extracomment>Parameter label: check type 705. Must differ from the other labels of the type.</extracomment>
        <translation>Feature Position</translation>
    </message>
    <message id="2503">
        <source>Features must be positioned as required.</source>
        <extracomment>Summary: what check type 705 asks for, on the summary page and in the report.</extracomment>
        <translation>Features must be positioned as required.</translation>
    </message>
    <message id="2599">
        <source>Feature Positioning</source>
        <extracomment>Button text: catalogue button of check type 705.</extracomment>
        <translation>Feature Positioning</translation>
    </message>
    <message id="32917">
        <source>File Name</source>
        <extracomment>Heading: first column of the merge list.</extracomment>
        <translation>File Name</translation>
    </message>
    <message id="32919">
        <source>Path</source>
        <extracomment>Heading: second column of the merge list; the full path.</extracomment>
        <translation>Path</translation>
    </message>
    <message id="32920">
        <source>Select the folder of the material databases</source>
        <extracomment>Tooltip: folder button of the material panes.</extracomment>
        <translation>Select the folder of the material databases</translation>
    </message>
    <message id="32937">
        <source>&amp;Misaligned Concentric Mates</source>
        <extracomment>Menu: Checks &gt; Assemblies menu. &amp; stands before the access key, unique in the menu.</extracomment>
        <translation>&amp;Misaligned Concentric Mates</translation>
    </message>
    <message id="32938">
        <source>Misaligned Concentric Mates</source>
        <extracomment>Button text: catalogue button of check type 608.</extracomment>
        <translation>Misaligned Concentric Mates</translation>
    </message>
    <message id="32939">
        <source>Misaligned Concentric Mates</source>
        <extracomment>Check name: check type 608; also the caption of its pane.</extracomment>
        <translation>Misaligned Concentric Mates</translation>
    </message>
    <message id="32946">
        <source>Concentric mates must be aligned as required.</source>
        <extracomment>Summary: what check type 608 asks for, on the summary page and in the report.</extracomment>
        <translation>Concentric mates must be aligned as required.</translation>
    </message>
    <message id="32947">
        <source>No Misalignment Allowed</source>
        <extracomment>Parameter label: check type 608. Must differ from the other labels of the type. Also the name that the parameter gets when the pane is filled.</extracomment>
        <translation>No Misalignment Allowed</translation>
    </message>
    <message id="32948">
        <source>Misalignment Allowed</source>
        <extracomment>Parameter label: check type 608. Must differ from the other labels of the type. Also the name that the parameter gets when the pane is filled.</extracomment>
        <translation>Misalignment Allowed</translation>
    </message>
    <message id="32949">
        <source>Maximum Misalignment</source>
        <extracomment>Parameter label: check type 608. Must differ from the other labels of the type. Also the name that the parameter gets when the pane is filled.</extracomment>
        <translation>Maximum Misalignment</translation>
    </message>
    <message id="32950">
        <source>Include Subassemblies</source>
        <extracomment>Parameter label: check type 608. Must differ from the other labels of the type. Also the name that the parameter gets when the pane is filled.</extracomment>
        <translation>Include Subassemblies</translation>
    </message>
    <message id="59137">
        <source>CAP</source>
        <extracomment>Other: status bar indicator of the caps lock key.</extracomment>
        <translation>CAP</translation>
    </message>
    <message id="59138">
        <source>NUM</source>
        <extracomment>Other: status bar indicator of the number lock key.</extracomment>
        <translation>NUM</translation>
    </message>
    <message id="59139">
        <source>SCRL</source>
        <extracomment>Other: status bar indicator of the scroll lock key.</extracomment>
        <translation>SCRL</translation>
    </message>
    <message id="59143">
        <source>Checks: %d</source>
        <extracomment>Other: status bar; %d is the number of checks in the standard.</extracomment>
        <translation>Checks: %d</translation>
    </message>
    <message id="61001">
        <source>The file cannot be read: %1</source>
        <extracomment>Message: why a document is not read: the file cannot be read; %1 is what the system says.</extracomment>
        <translation>The file cannot be read: %1</translation>
    </message>
    <message id="61002">
        <source>The file is larger than %1 MiB, which no standard is.</source>
        <extracomment>Message: why a document is not read: %1 is the limit in MiB.</extracomment>
        <translation>The file is larger than %1 MiB, which no standard is.</translation>
    </message>
    <message id="61003">
        <source>The file uses a character encoding that is not supported. Save it as UTF-8 and try again.</source>
        <extracomment>Message: why a document is not read: the encoding that the file names is not supported.</extracomment>
        <translation>The file uses a character encoding that is not supported. Save it as UTF-8 and try again.</translation>
    </message>
    <message id="61004">
        <source>The file contains bytes that are not text. It may be damaged, or it is no XML file.</source>
        <extracomment>Message: why a document is not read: bytes that are no characters.</extracomment>
        <translation>The file contains bytes that are not text. It may be damaged, or it is no XML file.</translation>
    </message>
    <message id="61005">
        <source>The file declares a document type, which no standard does.</source>
        <extracomment>Message: why a document is not read: a document type declaration (DOCTYPE).</extracomment>
        <translation>The file declares a document type, which no standard does.</translation>
    </message>
    <message id="61006">
        <source>The elements of the file are nested more than %1 levels deep, which no standard is.</source>
        <extracomment>Message: why a document is not read: %1 is the limit.</extracomment>
        <translation>The elements of the file are nested more than %1 levels deep, which no standard is.</translation>
    </message>
    <message id="61007">
        <source>An element of the file has more than %1 attributes, which no standard has.</source>
        <extracomment>Message: why a document is not read: %1 is the limit.</extracomment>
        <translation>An element of the file has more than %1 attributes, which no standard has.</translation>
    </message>
    <message id="61008">
        <source>The file has more content than can be read.</source>
        <extracomment>Message: why a document is not read: too many elements and texts.</extracomment>
        <translation>The file has more content than can be read.</translation>
    </message>
    <message id="61009">
        <source>The file is damaged or no XML file. Line %1: %2</source>
        <extracomment>Message: why a document is not read: %1 is the line, %2 the words of the XML library in English.</extracomment>
        <translation>The file is damaged or no XML file. Line %1: %2</translation>
    </message>
    <message id="61010">
        <source>The file is empty.</source>
        <extracomment>Message: why a document is not read: a file without content.</extracomment>
        <translation>The file is empty.</translation>
    </message>
    <message id="61011">
        <source>The file contains an attribute that is too long to be read.</source>
        <extracomment>Message: why a document is not read: the text of an attribute.</extracomment>
        <translation>The file contains an attribute that is too long to be read.</translation>
    </message>
    <message id="61012">
        <source>The file uses more different names than any standard does.</source>
        <extracomment>Message: why a document is not read: names of elements and attributes.</extracomment>
        <translation>The file uses more different names than any standard does.</translation>
    </message>
    <message id="61101">
        <source>The archive cannot be opened.</source>
        <extracomment>Reason: why an archive is not read or written.</extracomment>
        <translation>The archive cannot be opened.</translation>
    </message>
    <message id="61102">
        <source>The archive cannot be read: it is damaged or cut short.</source>
        <extracomment>Reason: why an archive is not read or written.</extracomment>
        <translation>The archive cannot be read: it is damaged or cut short.</translation>
    </message>
    <message id="61103">
        <source>There are more than %1 files and folders.</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a number.</extracomment>
        <translation>There are more than %1 files and folders.</translation>
    </message>
    <message id="61104">
        <source>A name is not valid UTF-8: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>A name is not valid UTF-8: %1</translation>
    </message>
    <message id="61105">
        <source>A name is too long: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name, shortened.</extracomment>
        <translation>A name is too long: %1</translation>
    </message>
    <message id="61106">
        <source>A name leads out of the folder: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>A name leads out of the folder: %1</translation>
    </message>
    <message id="61107">
        <source>A name cannot be used: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>A name cannot be used: %1</translation>
    </message>
    <message id="61108">
        <source>The archive holds a link: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds a link: %1</translation>
    </message>
    <message id="61109">
        <source>The archive holds something that is neither a file nor a folder: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds something that is neither a file nor a folder: %1</translation>
    </message>
    <message id="61110">
        <source>A name is used twice: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>A name is used twice: %1</translation>
    </message>
    <message id="61111">
        <source>A name is used for a file and for a folder: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>A name is used for a file and for a folder: %1</translation>
    </message>
    <message id="61112">
        <source>The archive holds an encrypted file: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds an encrypted file: %1</translation>
    </message>
    <message id="61113">
        <source>The archive holds a file that is packed in an unknown way: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds a file that is packed in an unknown way: %1</translation>
    </message>
    <message id="61114">
        <source>The archive holds files that overlap: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds files that overlap: %1</translation>
    </message>
    <message id="61115">
        <source>The archive contradicts itself about a file: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive contradicts itself about a file: %1</translation>
    </message>
    <message id="61116">
        <source>The archive gives a wrong size for a file: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive gives a wrong size for a file: %1</translation>
    </message>
    <message id="61117">
        <source>The archive holds a damaged file: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The archive holds a damaged file: %1</translation>
    </message>
    <message id="61118">
        <source>The files are larger than %1 MiB together.</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a number.</extracomment>
        <translation>The files are larger than %1 MiB together.</translation>
    </message>
    <message id="61119">
        <source>The archive would grow to more than %1 times its size.</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a number.</extracomment>
        <translation>The archive would grow to more than %1 times its size.</translation>
    </message>
    <message id="61120">
        <source>The folder has a file of this name already: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name.</extracomment>
        <translation>The folder has a file of this name already: %1</translation>
    </message>
    <message id="61121">
        <source>A link or a file stands where a folder is needed: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is the name of the folder.</extracomment>
        <translation>A link or a file stands where a folder is needed: %1</translation>
    </message>
    <message id="61122">
        <source>A file cannot be written: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name and the system's reason.</extracomment>
        <translation>A file cannot be written: %1</translation>
    </message>
    <message id="61123">
        <source>A file cannot be read: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is a file name and the system's reason.</extracomment>
        <translation>A file cannot be read: %1</translation>
    </message>
    <message id="61124">
        <source>The archive cannot be written: %1</source>
        <extracomment>Reason: why an archive is not read or written. %1 is the system's reason.</extracomment>
        <translation>The archive cannot be written: %1</translation>
    </message>
    <message id="61201">
        <source>The file could not be written: %1</source>
        <extracomment>Message: reason that a file was not saved; %1 is the operating system's reason.</extracomment>
        <translation>The file could not be written: %1</translation>
    </message>
    <message id="61202">
        <source>No new file can be made in its folder: %1</source>
        <extracomment>Message: reason that a file was not saved; a new file is first written beside the old one. %1 is the operating system's reason.</extracomment>
        <translation>No new file can be made in its folder: %1</translation>
    </message>
    <message id="61203">
        <source>The disk did not take the file: %1</source>
        <extracomment>Message: reason that a file was not saved; the disk reported an error at the end of writing. %1 is the operating system's reason.</extracomment>
        <translation>The disk did not take the file: %1</translation>
    </message>
    <message id="61204">
        <source>The finished file could not take the place of the old one: %1</source>
        <extracomment>Message: reason that a file was not saved; %1 is the operating system's reason.</extracomment>
        <translation>The finished file could not take the place of the old one: %1</translation>
    </message>
    <message id="61205">
        <source>The file is open elsewhere.</source>
        <extracomment>Message: reason that a file was not saved; another window or another user has it open.</extracomment>
        <translation>The file is open elsewhere.</translation>
    </message>
    <message id="61206">
        <source>The file could not be read: %1</source>
        <extracomment>Message: reason that a file was not copied; %1 is the operating system's reason.</extracomment>
        <translation>The file could not be read: %1</translation>
    </message>
    <message id="61207">
        <source>The access rights of the file could not be kept: %1</source>
        <extracomment>Message: reason that a file was not saved; %1 is the operating system's reason.</extracomment>
        <translation>The access rights of the file could not be kept: %1</translation>
    </message>
    <message id="61208">
        <source>The file is write-protected: %1</source>
        <extracomment>Message: reason that a file was not saved; %1 is the operating system's reason.</extracomment>
        <translation>The file is write-protected: %1</translation>
    </message>
    <message id="61209">
        <source>The name does not belong to an ordinary file.</source>
        <extracomment>Message: reason that a file was not saved or copied; the name is that of a folder or a device.</extracomment>
        <translation>The name does not belong to an ordinary file.</translation>
    </message>
    <message id="61210">
        <source>The file cannot be reached: %1</source>
        <extracomment>Message: reason that a file was not saved; %1 is the operating system's reason.</extracomment>
        <translation>The file cannot be reached: %1</translation>
    </message>
    <message id="61211">
        <source>The file is saved, but a power failure might still undo that: %1</source>
        <extracomment>Message: warning after a file was saved; the disk reported an error about the folder. %1 is the operating system's reason.</extracomment>
        <translation>The file is saved, but a power failure might still undo that: %1</translation>
    </message>
    <message id="61301">
        <source>These pictures of the report could not be written: %1</source>
        <extracomment>Message: %1 is a list of names of pictures.</extracomment>
        <translation>These pictures of the report could not be written: %1</translation>
    </message>
    <message id="61302">
        <source>The report page could not be made: %1</source>
        <extracomment>Message: %1 is the reason, in words of a library.</extracomment>
        <translation>The report page could not be made: %1</translation>
    </message>
    <message id="61303">
        <source>Page %1 of %2</source>
        <extracomment>Other: foot of each page of a printed report; page and number of pages.</extracomment>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="61304">
        <source>The report was stopped.</source>
        <extracomment>Message: the user stopped the making of a report.</extracomment>
        <translation>The report was stopped.</translation>
    </message>
    <message id="61305">
        <source>The pages of the report could not be drawn.</source>
        <extracomment>Message: the printer or the file took no pages.</extracomment>
        <translation>The pages of the report could not be drawn.</translation>
    </message>
    <message id="61401">
        <source>The file is neither a standard nor an archive that holds one.</source>
        <extracomment>Message: reason that a file cannot be opened, packed or merged.</extracomment>
        <translation>The file is neither a standard nor an archive that holds one.</translation>
    </message>
    <message id="61402">
        <source>The folder of the merge cannot be made: %1</source>
        <extracomment>Message: reason that a merge did not take place; %1 is the folder.</extracomment>
        <translation>The folder of the merge cannot be made: %1</translation>
    </message>
    <message id="61403">
        <source>This standard was saved by a later version of the program: %1</source>
        <extracomment>Warning of a merge; %1 is the number of the version.</extracomment>
        <translation>This standard was saved by a later version of the program: %1</translation>
    </message>
    <message id="61404">
        <source>A check without a type was found; it and all that follow were left out.</source>
        <extracomment>Warning of a merge about one of its files.</extracomment>
        <translation>A check without a type was found; it and all that follow were left out.</translation>
    </message>
    <message id="61405">
        <source>The converted value of “%1” was rounded to six decimals.</source>
        <extracomment>Warning of a merge about a check from a file of another length unit; %1 is the parameter.</extracomment>
        <translation>The converted value of “%1” was rounded to six decimals.</translation>
    </message>
    <message id="61406">
        <source>Only the first value of “%1” was converted to the length unit of the result.</source>
        <extracomment>Warning of a merge about a check from a file of another length unit; %1 is the parameter.</extracomment>
        <translation>Only the first value of “%1” was converted to the length unit of the result.</translation>
    </message>
    <message id="61407">
        <source>The correction of “%1” was not converted to the length unit of the result.</source>
        <extracomment>Warning of a merge about a check from a file of another length unit; %1 is the parameter.</extracomment>
        <translation>The correction of “%1” was not converted to the length unit of the result.</translation>
    </message>
    <message id="61408">
        <source>The lengths of its single checks were not converted to the length unit of the result.</source>
        <extracomment>Warning of a merge about a group of checks from a file of another length unit.</extracomment>
        <translation>The lengths of its single checks were not converted to the length unit of the result.</translation>
    </message>
    <message id="61409">
        <source>Its angles were not converted to the angle unit of the result.</source>
        <extracomment>Warning of a merge about a check from a file of another angle unit.</extracomment>
        <translation>Its angles were not converted to the angle unit of the result.</translation>
    </message>
    <message id="61701">
        <source>Ready</source>
        <extracomment>Status bar: nothing is going on.</extracomment>
        <translation>Ready</translation>
    </message>
    <message id="61702">
        <source>&amp;Print Standard</source>
        <extracomment>Command: prints the standard at once.</extracomment>
        <translation>&amp;Print Standard</translation>
    </message>
    <message id="61703">
        <source>Do you want to save the changes to “%1”?
If you discard them, they are lost.</source>
        <extracomment>Question when a changed standard is closed; %1 is the name of its file.</extracomment>
        <translation>Do you want to save the changes to “%1”?
If you discard them, they are lost.</translation>
    </message>
    <message id="61704">
        <source>The file “%1” could not be saved.
What stood there before is untouched, and your changes stay in the open standard.</source>
        <extracomment>Message of a failed save; %1 is the file. The reason follows on a line of its own.</extracomment>
        <translation>The file “%1” could not be saved.
What stood there before is untouched, and your changes stay in the open standard.</translation>
    </message>
    <message id="61705">
        <source>The file “%1” does not exist.</source>
        <extracomment>Message on opening a file; %1 is its path.</extracomment>
        <translation>The file “%1” does not exist.</translation>
    </message>
    <message id="61706">
        <source>The help has no page for topic %1 yet.</source>
        <extracomment>Message of the help; %1 is the topic.</extracomment>
        <translation>The help has no page for topic %1 yet.</translation>
    </message>
    <message id="61707">
        <source>&amp;Save</source>
        <extracomment>Button of the question about changes.</extracomment>
        <translation>&amp;Save</translation>
    </message>
    <message id="61708">
        <source>&amp;Discard</source>
        <extracomment>Button of the question about changes.</extracomment>
        <translation>&amp;Discard</translation>
    </message>
    <message id="61709">
        <source>Cancel</source>
        <extracomment>Button of a question.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="61710">
        <source>OK</source>
        <extracomment>Button of a message.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="61711">
        <source>&amp;Yes</source>
        <extracomment>Button of a question.</extracomment>
        <translation>&amp;Yes</translation>
    </message>
    <message id="61712">
        <source>&amp;No</source>
        <extracomment>Button of a question.</extracomment>
        <translation>&amp;No</translation>
    </message>
    <message id="61801">
        <source>Report: %1</source>
        <extracomment>Title: window that shows a standard's report; %1 is the standard.</extracomment>
        <translation>Report: %1</translation>
    </message>
    <message id="61802">
        <source>&amp;Save as PDF...</source>
        <extracomment>Caption: button of the report window. Access keys are unique in the window.</extracomment>
        <translation>&amp;Save as PDF...</translation>
    </message>
    <message id="61803">
        <source>&amp;Print...</source>
        <extracomment>Caption: button of the report window. Access keys are unique in the window.</extracomment>
        <translation>&amp;Print...</translation>
    </message>
    <message id="61804">
        <source>&amp;Close</source>
        <extracomment>Caption: button of the report window. Access keys are unique in the window.</extracomment>
        <translation>&amp;Close</translation>
    </message>
    <message id="61805">
        <source>PDF files (*.pdf)</source>
        <extracomment>Filter: file type of a saved report. Keep the pattern in brackets.</extracomment>
        <translation>PDF files (*.pdf)</translation>
    </message>
    <message id="61806">
        <source>Laying out the report...</source>
        <extracomment>Other: progress of printing or saving a report, before the number of pages is known.</extracomment>
        <translation>Laying out the report...</translation>
    </message>
    <message id="61807">
        <source>&amp;Stop</source>
        <extracomment>Caption: button beside the progress of printing or saving a report.</extracomment>
        <translation>&amp;Stop</translation>
    </message>
    <message id="61808">
        <source>Stopping...</source>
        <extracomment>Other: in the place of the progress, after the user pressed the button Stop.</extracomment>
        <translation>Stopping...</translation>
    </message>
    <message id="61809">
        <source>The file could not be written:
%1

%2</source>
        <extracomment>Message: a report could not be saved; %1 is the file, %2 the reason. What stood there before is as it was.</extracomment>
        <translation>The file could not be written:
%1

%2</translation>
    </message>
    <message id="61810">
        <source>The report could not be printed on %1.

%2</source>
        <extracomment>Message: %1 is the printer, %2 the reason.</extracomment>
        <translation>The report could not be printed on %1.

%2</translation>
    </message>
    <message id="61811">
        <source>Saving %1</source>
        <extracomment>Title: progress of saving a report; %1 is the file's name.</extracomment>
        <translation>Saving %1</translation>
    </message>
    <message id="61812">
        <source>Printing on %1</source>
        <extracomment>Title: progress of printing a report; %1 is the printer.</extracomment>
        <translation>Printing on %1</translation>
    </message>
    <message id="61813">
        <source>Saved: %1</source>
        <extracomment>Other: line at the foot of the report window; %1 is the file.</extracomment>
        <translation>Saved: %1</translation>
    </message>
    <message id="61814">
        <source>No printer is set up on this computer. The report can be saved as a PDF file.</source>
        <extracomment>Message: the button Print of the report window where there is no printer.</extracomment>
        <translation>No printer is set up on this computer. The report can be saved as a PDF file.</translation>
    </message>
    <message id="61815">
        <source>Larger (Ctrl++)</source>
        <extracomment>Tooltip: button of the report window.</extracomment>
        <translation>Larger (Ctrl++)</translation>
    </message>
    <message id="61816">
        <source>Smaller (Ctrl+-)</source>
        <extracomment>Tooltip: button of the report window.</extracomment>
        <translation>Smaller (Ctrl+-)</translation>
    </message>
    <message id="61821">
        <source>About Ruleward Builder</source>
        <extracomment>Title: the window that tells name and version of the program.</extracomment>
        <translation>About Ruleward Builder</translation>
    </message>
    <message id="61822">
        <source>Version %1</source>
        <extracomment>Other: in the window that tells name and version of the program; %1 is the number.</extracomment>
        <translation>Version %1</translation>
    </message>
    <message id="61823">
        <source>For writing down what a design department requires of its CAD documents.</source>
        <extracomment>Other: in the window that tells name and version of the program: what it is for.</extracomment>
        <translation>For writing down what a design department requires of its CAD documents.</translation>
    </message>
    <message id="62001">
        <source>This standard has no checks yet</source>
        <extracomment>Hint: an empty page of checks.</extracomment>
        <translation>This standard has no checks yet</translation>
    </message>
    <message id="62002">
        <source>Checks</source>
        <extracomment>Tab: the page of checks.</extracomment>
        <translation>Checks</translation>
    </message>
    <message id="62003">
        <source>Summary</source>
        <extracomment>Tab: the summary of a standard.</extracomment>
        <translation>Summary</translation>
    </message>
    <message id="62004">
        <source>Options</source>
        <extracomment>Tab: the options of a standard.</extracomment>
        <translation>Options</translation>
    </message>
    <message id="62005">
        <source>Choose a check in the bar at the left. It is added here, ready to be filled in. Choosing it once more takes it away again.</source>
        <extracomment>Hint: how to add the first check.</extracomment>
        <translation>Choose a check in the bar at the left. It is added here, ready to be filled in. Choosing it once more takes it away again.</translation>
    </message>
    <message id="62006">
        <source>No checks of this group</source>
        <extracomment>Hint: the standard holds only checks of other groups.</extracomment>
        <translation>No checks of this group</translation>
    </message>
    <message id="62007">
        <source>Choose one in the bar at the left to add it, or press “Show All Checks” to see those of the other groups.</source>
        <extracomment>Hint: how to add or find checks; the quoted words are the text of a button.</extracomment>
        <translation>Choose one in the bar at the left to add it, or press “Show All Checks” to see those of the other groups.</translation>
    </message>
    <message id="62008">
        <source>%1 (%2)</source>
        <extracomment>Tooltip of a tab: the page and the key that shows it.</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message id="62101">
        <source>The values of this check are shown on the Summary page and stay exactly as they are.</source>
        <extracomment>Pane of a check: its values cannot be edited in the pane, only its criticality.</extracomment>
        <translation>The values of this check are shown on the Summary page and stay exactly as they are.</translation>
    </message>
    <message id="62102">
        <source>Correction of %1</source>
        <extracomment>Pane of a check: name of the field for the value to which a failing item is corrected; %1 is the parameter.</extracomment>
        <translation>Correction of %1</translation>
    </message>
    <message id="62103">
        <source>Criticalit&amp;y</source>
        <extracomment>Pane of a check: label of the criticality, with a key.</extracomment>
        <translation>Criticalit&amp;y</translation>
    </message>
    <message id="62104">
        <source>Correct to</source>
        <extracomment>Pane of a check: heading of the values to which a failing item is corrected.</extracomment>
        <translation>Correct to</translation>
    </message>
    <message id="62105">
        <source>Name of the standard</source>
        <extracomment>Pane of the drafting standard: field for the name of a custom standard.</extracomment>
        <translation>Name of the standard</translation>
    </message>
    <message id="62110">
        <source>The assembly must not contain hidden components.</source>
        <extracomment>Pane of a check: what it requires.</extracomment>
        <translation>The assembly must not contain hidden components.</translation>
    </message>
    <message id="62120">
        <source>Comparison of %1</source>
        <extracomment>Pane of a check: name of the box of operators; %1 is the parameter.</extracomment>
        <translation>Comparison of %1</translation>
    </message>
    <message id="102.1002">
        <source>Dimension arrow hei&amp;ght</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Dimension arrow hei&amp;ght</translation>
    </message>
    <message id="102.1006">
        <source>Dimension arrow wi&amp;dth</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Dimension arrow wi&amp;dth</translation>
    </message>
    <message id="102.1013">
        <source>Dimension arrow &amp;length</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Dimension arrow &amp;length</translation>
    </message>
    <message id="102.1022">
        <source>&amp;Section arrow height</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>&amp;Section arrow height</translation>
    </message>
    <message id="102.1028">
        <source>Sec&amp;tion arrow width</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Sec&amp;tion arrow width</translation>
    </message>
    <message id="102.1033">
        <source>Section arr&amp;ow length</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Section arr&amp;ow length</translation>
    </message>
    <message id="102.1066">
        <source>Arrowhead at edge or &amp;vertex</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Arrowhead at edge or &amp;vertex</translation>
    </message>
    <message id="102.1113">
        <source>Arrowhead &amp;at face</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>Arrowhead &amp;at face</translation>
    </message>
    <message id="102.1117">
        <source>&amp;Unattached arrowhead</source>
        <extracomment>Label in the pane of the arrowheads of a document.</extracomment>
        <translation>&amp;Unattached arrowhead</translation>
    </message>
    <message id="1069.1073">
        <source>A&amp;rrowhead style</source>
        <extracomment>Label in the pane of the arrowheads of annotations.</extracomment>
        <translation>A&amp;rrowhead style</translation>
    </message>
    <message id="1070.1080">
        <source>&amp;Number of fixed components</source>
        <extracomment>Label in the pane of the fixed components. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Number of fixed components</translation>
    </message>
    <message id="1076.1000">
        <source>Length (for the custom unit system)</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Length (for the custom unit system)</translation>
    </message>
    <message id="1076.1001">
        <source>Mass properties (for the custom unit system)</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Mass properties (for the custom unit system)</translation>
    </message>
    <message id="1076.1002">
        <source>Dual length</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Dual length</translation>
    </message>
    <message id="1076.1003">
        <source>Angle</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Angle</translation>
    </message>
    <message id="1076.1029">
        <source>Num&amp;ber format</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Num&amp;ber format</translation>
    </message>
    <message id="1076.1096">
        <source>Length &amp;unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Length &amp;unit</translation>
    </message>
    <message id="1076.1098">
        <source>Dec&amp;imal places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Dec&amp;imal places</translation>
    </message>
    <message id="1076.1101">
        <source>F&amp;raction denominator</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>F&amp;raction denominator</translation>
    </message>
    <message id="1076.1104">
        <source>&amp;Angle unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Angle unit</translation>
    </message>
    <message id="1076.1105">
        <source>Round to nearest fraction</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Round to nearest fraction</translation>
    </message>
    <message id="1076.1106">
        <source>Decimal places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Decimal places</translation>
    </message>
    <message id="1076.1109">
        <source>&amp;Length unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Length unit</translation>
    </message>
    <message id="1076.1110">
        <source>&amp;Decimal places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Decimal places</translation>
    </message>
    <message id="1076.1113">
        <source>Fraction denomina&amp;tor</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Fraction denomina&amp;tor</translation>
    </message>
    <message id="1076.1116">
        <source>Round to nearest fraction</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Round to nearest fraction</translation>
    </message>
    <message id="1076.1118">
        <source>Len&amp;gth unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Len&amp;gth unit</translation>
    </message>
    <message id="1076.1119">
        <source>Decimal &amp;places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Decimal &amp;places</translation>
    </message>
    <message id="1076.1122">
        <source>&amp;Mass unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Mass unit</translation>
    </message>
    <message id="1076.1123">
        <source>&amp;Volume unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Volume unit</translation>
    </message>
    <message id="1076.1124">
        <source>F&amp;orce unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>F&amp;orce unit</translation>
    </message>
    <message id="1076.1127">
        <source>Unit &amp;system</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Unit &amp;system</translation>
    </message>
    <message id="1076.1132">
        <source>&amp;Number format</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Number format</translation>
    </message>
    <message id="1077.1000">
        <source>Length</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Length</translation>
    </message>
    <message id="1077.1003">
        <source>Angle</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Angle</translation>
    </message>
    <message id="1077.1029">
        <source>&amp;Number format</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Number format</translation>
    </message>
    <message id="1077.1104">
        <source>&amp;Angle unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Angle unit</translation>
    </message>
    <message id="1077.1106">
        <source>Decimal &amp;places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Decimal &amp;places</translation>
    </message>
    <message id="1077.1109">
        <source>&amp;Length unit</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Length unit</translation>
    </message>
    <message id="1077.1110">
        <source>&amp;Decimal places</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Decimal places</translation>
    </message>
    <message id="1077.1113">
        <source>Fraction den&amp;ominator</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Fraction den&amp;ominator</translation>
    </message>
    <message id="1077.1116">
        <source>&amp;Round to nearest fraction</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Round to nearest fraction</translation>
    </message>
    <message id="1077.1133">
        <source>Use the units of the docu&amp;ment</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Use the units of the docu&amp;ment</translation>
    </message>
    <message id="1080.1000">
        <source>&amp;Document units</source>
        <extracomment>Choice in the panes of the font checks: the text height is given in the length unit.</extracomment>
        <translation>&amp;Document units</translation>
    </message>
    <message id="1080.1001">
        <source>&amp;Text height</source>
        <extracomment>Label in the panes of the font checks. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Text height</translation>
    </message>
    <message id="1080.1003">
        <source>Text spacin&amp;g</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>Text spacin&amp;g</translation>
    </message>
    <message id="1080.1005">
        <source>&amp;Points</source>
        <extracomment>Choice in the panes of the font checks: the text height is given in points.</extracomment>
        <translation>&amp;Points</translation>
    </message>
    <message id="1080.1006">
        <source>Text height &amp;in points</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>Text height &amp;in points</translation>
    </message>
    <message id="1080.1007">
        <source>Strike&amp;out</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>Strike&amp;out</translation>
    </message>
    <message id="1080.1008">
        <source>&amp;Underline</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>&amp;Underline</translation>
    </message>
    <message id="1080.1009">
        <source>Height given in</source>
        <extracomment>Label in the panes of the font checks: in front of the two choices.</extracomment>
        <translation>Height given in</translation>
    </message>
    <message id="1080.1068">
        <source>Use the font of the docu&amp;ment</source>
        <extracomment>Box in the panes of the font checks of dimensions and annotations.</extracomment>
        <translation>Use the font of the docu&amp;ment</translation>
    </message>
    <message id="1080.1136">
        <source>Font &amp;name</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>Font &amp;name</translation>
    </message>
    <message id="1080.1137">
        <source>Font &amp;style</source>
        <extracomment>Label in the panes of the font checks.</extracomment>
        <translation>Font &amp;style</translation>
    </message>
    <message id="1080.1138">
        <source>pt</source>
        <extracomment>Unit in the panes of the font checks: points.</extracomment>
        <translation>pt</translation>
    </message>
    <message id="1080.1240">
        <source>&amp;Apply</source>
        <extracomment>Button of the dialog that adds font checks: adds them and leaves the dialog open.</extracomment>
        <translation>&amp;Apply</translation>
    </message>
    <message id="1080.1243">
        <source>Checks to add</source>
        <extracomment>Heading in the dialog that adds font checks, over the boxes of the checks.</extracomment>
        <translation>Checks to add</translation>
    </message>
    <message id="1081.1140">
        <source>External reference s&amp;tate</source>
        <extracomment>Label in the pane of the external references.</extracomment>
        <translation>External reference s&amp;tate</translation>
    </message>
    <message id="1093.1067">
        <source>Arrow placemen&amp;t</source>
        <extracomment>Label in the pane of the arrowheads of dimensions.</extracomment>
        <translation>Arrow placemen&amp;t</translation>
    </message>
    <message id="1093.1075">
        <source>Use the arrow placement of the doc&amp;ument</source>
        <extracomment>Box in the pane of the arrowheads of dimensions.</extracomment>
        <translation>Use the arrow placement of the doc&amp;ument</translation>
    </message>
    <message id="1093.1077">
        <source>Use the arrowhead style of the docu&amp;ment</source>
        <extracomment>Box in the panes of the arrowheads of dimensions and annotations.</extracomment>
        <translation>Use the arrowhead style of the docu&amp;ment</translation>
    </message>
    <message id="1093.1112">
        <source>F&amp;irst arrowhead</source>
        <extracomment>Label in the pane of the arrowheads of dimensions.</extracomment>
        <translation>F&amp;irst arrowhead</translation>
    </message>
    <message id="1093.1121">
        <source>Sec&amp;ond arrowhead</source>
        <extracomment>Label in the pane of the arrowheads of dimensions.</extracomment>
        <translation>Sec&amp;ond arrowhead</translation>
    </message>
    <message id="1325.1000">
        <source>Units</source>
        <extracomment>Heading on the options page.</extracomment>
        <translation>Units</translation>
    </message>
    <message id="1325.1001">
        <source>Lengths and angles of this standard are entered and shown in these units. Choosing another unit converts every value; new standards start with the units chosen last.</source>
        <extracomment>Explanation on the options page.</extracomment>
        <translation>Lengths and angles of this standard are entered and shown in these units. Choosing another unit converts every value; new standards start with the units chosen last.</translation>
    </message>
    <message id="1325.1002">
        <source>&amp;Length unit:</source>
        <extracomment>Label on the options page.</extracomment>
        <translation>&amp;Length unit:</translation>
    </message>
    <message id="1325.1003">
        <source>&amp;Angle unit:</source>
        <extracomment>Label on the options page.</extracomment>
        <translation>&amp;Angle unit:</translation>
    </message>
    <message id="1325.1004">
        <source>Configurations</source>
        <extracomment>Heading on the options page.</extracomment>
        <translation>Configurations</translation>
    </message>
    <message id="1325.1005">
        <source>Which configuration of a document the checker looks at when it runs this standard.</source>
        <extracomment>Explanation on the options page.</extracomment>
        <translation>Which configuration of a document the checker looks at when it runs this standard.</translation>
    </message>
    <message id="1325.1238">
        <source>Run with the &amp;default configuration</source>
        <extracomment>Choice on the options page.</extracomment>
        <translation>Run with the &amp;default configuration</translation>
    </message>
    <message id="1325.1239">
        <source>Run with the configuration of the d&amp;ocument</source>
        <extracomment>Choice on the options page.</extracomment>
        <translation>Run with the configuration of the d&amp;ocument</translation>
    </message>
    <message id="1429.1316">
        <source>&amp;Do not show this message again</source>
        <extracomment>Box in a message that may be switched off.</extracomment>
        <translation>&amp;Do not show this message again</translation>
    </message>
    <message id="1565.1265">
        <source>Display &amp;mode</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Display &amp;mode</translation>
    </message>
    <message id="1566.1270">
        <source>&amp;Add...</source>
        <extracomment>Button in the pane of the bend tables.</extracomment>
        <translation>&amp;Add...</translation>
    </message>
    <message id="1566.1272">
        <source>Bend &amp;table files</source>
        <extracomment>Label in the pane of the bend tables.</extracomment>
        <translation>Bend &amp;table files</translation>
    </message>
    <message id="1568.1261">
        <source>&amp;Linear dimensions</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Linear dimensions</translation>
    </message>
    <message id="1568.1520">
        <source>&amp;Radial dimensions</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Radial dimensions</translation>
    </message>
    <message id="1568.1523">
        <source>&amp;Angular dimensions</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Angular dimensions</translation>
    </message>
    <message id="1568.1526">
        <source>Cha&amp;mfer dimensions</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Cha&amp;mfer dimensions</translation>
    </message>
    <message id="1569.1000">
        <source>Precision settings</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Precision settings</translation>
    </message>
    <message id="1569.1001">
        <source>Tolerance values</source>
        <extracomment>Heading in a pane of a check.</extracomment>
        <translation>Tolerance values</translation>
    </message>
    <message id="1569.1256">
        <source>Linear &amp;precision</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Linear &amp;precision</translation>
    </message>
    <message id="1569.1257">
        <source>Linear &amp;tolerance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Linear &amp;tolerance</translation>
    </message>
    <message id="1569.1260">
        <source>&amp;Dual precision</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>&amp;Dual precision</translation>
    </message>
    <message id="1569.1262">
        <source>Dual t&amp;olerance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Dual t&amp;olerance</translation>
    </message>
    <message id="1569.1272">
        <source>An&amp;gular precision</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>An&amp;gular precision</translation>
    </message>
    <message id="1569.1273">
        <source>Angular tolera&amp;nce</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Angular tolera&amp;nce</translation>
    </message>
    <message id="1569.1321">
        <source>To compare</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>To compare</translation>
    </message>
    <message id="1569.1322">
        <source>Precision &amp;settings</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Precision &amp;settings</translation>
    </message>
    <message id="1569.1323">
        <source>Tolerance &amp;values</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Tolerance &amp;values</translation>
    </message>
    <message id="1569.1328">
        <source>Linear &amp;upper tolerance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Linear &amp;upper tolerance</translation>
    </message>
    <message id="1569.1329">
        <source>L&amp;inear lower tolerance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>L&amp;inear lower tolerance</translation>
    </message>
    <message id="1569.1331">
        <source>Angular upper tole&amp;rance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Angular upper tole&amp;rance</translation>
    </message>
    <message id="1569.1332">
        <source>Angu&amp;lar lower tolerance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Angu&amp;lar lower tolerance</translation>
    </message>
    <message id="1569.1338">
        <source>Dimensions to chec&amp;k</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Dimensions to chec&amp;k</translation>
    </message>
    <message id="1569.1340">
        <source>Linear</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Linear</translation>
    </message>
    <message id="1569.1341">
        <source>Angular</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Angular</translation>
    </message>
    <message id="1573.1080">
        <source>Interference &amp;volume</source>
        <extracomment>Label in the pane of the interferences.</extracomment>
        <translation>Interference &amp;volume</translation>
    </message>
    <message id="1573.1281">
        <source>Interference &amp;options</source>
        <extracomment>Label in the pane of the interferences.</extracomment>
        <translation>Interference &amp;options</translation>
    </message>
    <message id="1574.1083">
        <source>Visible gap e&amp;xtension</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Visible gap e&amp;xtension</translation>
    </message>
    <message id="1574.1285">
        <source>Visible gap &amp;distance</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Visible gap &amp;distance</translation>
    </message>
    <message id="1574.1288">
        <source>Use the setting of the docu&amp;ment</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Use the setting of the docu&amp;ment</translation>
    </message>
    <message id="1575.1289">
        <source>Virtual &amp;sharp</source>
        <extracomment>Label in a pane of a check. Access keys are unique in the pane and differ from those of the menu bar.</extracomment>
        <translation>Virtual &amp;sharp</translation>
    </message>
    <message id="1576.1274">
        <source>Fo&amp;lders</source>
        <extracomment>Label in the pane of the file locations.</extracomment>
        <translation>Fo&amp;lders</translation>
    </message>
    <message id="1576.1325">
        <source>&amp;Add...</source>
        <extracomment>Button in the pane of the file locations.</extracomment>
        <translation>&amp;Add...</translation>
    </message>
    <message id="1576.1329">
        <source>Folder rule&amp;s</source>
        <extracomment>Label in the pane of the file locations.</extracomment>
        <translation>Folder rule&amp;s</translation>
    </message>
    <message id="1576.1341">
        <source>File &amp;type</source>
        <extracomment>Label in the pane of the file locations.</extracomment>
        <translation>File &amp;type</translation>
    </message>
    <message id="32935.32940">
        <source>&amp;No misalignment allowed</source>
        <extracomment>Choice in the pane of the misaligned mates.</extracomment>
        <translation>&amp;No misalignment allowed</translation>
    </message>
    <message id="32935.32941">
        <source>Misalignment &amp;allowed</source>
        <extracomment>Choice in the pane of the misaligned mates.</extracomment>
        <translation>Misalignment &amp;allowed</translation>
    </message>
    <message id="32935.32942">
        <source>&amp;Maximum misalignment</source>
        <extracomment>Choice in the pane of the misaligned mates.</extracomment>
        <translation>&amp;Maximum misalignment</translation>
    </message>
    <message id="32935.32943">
        <source>Include &amp;subassemblies</source>
        <extracomment>Box in the pane of the misaligned mates.</extracomment>
        <translation>Include &amp;subassemblies</translation>
    </message>
</context>
</TS>
