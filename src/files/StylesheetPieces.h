// The fixed pieces of the report's stylesheet. Texts in the tool's language stand between them: title,
// heading, three labels, second heading and three column heads.
#pragma once

namespace StylesheetPieces {

// The rows of one check, and the page up to its title.
inline constexpr char A[] = R"(<?xml version='1.0'?>
<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>
<xsl:output method='html'/>
<xsl:template name='CommonCode'>
<tr>
<td align='center'><b><font face='Arial' size='2' color='#008000'><xsl:value-of select='@Name'/></font></b></td>
<xsl:choose>
<xsl:when test='string(@Summary)=""'>
<td colspan='2'>
<table border='1' width='100%' cellspacing='0'>
<xsl:for-each select='Parameter[Operator!=0]'>
<tr>
<td width='50%' align='center'><b><font face='Arial' size='2' color='#FF0000'><xsl:value-of select='@Name'/></font></b></td>
<td>
<table width='100%' cellpadding='0'>
<xsl:for-each select='Value'>
<tr>
<xsl:choose>
<xsl:when test='@Datatype="Image"'>
<td align='center'><img src='resources/{@FileName}.bmp'/></td>
</xsl:when>
<xsl:when test='@Datatype="Color"'>
<td align='center' bgcolor='#{@RGB}'>&#160;</td>
</xsl:when>
<xsl:otherwise>
<td align='center'><b><font face='Arial' size='2' color='#FF0000'><xsl:value-of select='.'/></font></b></td>
</xsl:otherwise>
</xsl:choose>
</tr>
</xsl:for-each>
</table>
</td>
</tr>
</xsl:for-each>
</table>
</td>
</xsl:when>
<xsl:otherwise>
<td colspan='2' align='center'><b><font face='Arial' size='2' color='#FF0000'><xsl:value-of select='@Summary'/></font></b></td>
</xsl:otherwise>
</xsl:choose>
</tr>
</xsl:template>
<xsl:template match='/'>
<html>
<head>
<title>)";

// The main heading.
inline constexpr char B[] = R"(</title>
</head>
<body>
<a name='top'></a>
<br/><br/>
<table align='center'>
<tr>
<td><u><a name='Kortavo - Ruleward'><b><font color='DarkBlue' face='Arial' size='6'>)";

// The table of the header's fields.
inline constexpr char C[] = R"(</font></b></a></u></td>
</tr>
</table>
<br/><br/>
<table border='1' width='50%' align='center'>
<tr>
<td><b><font face='Arial' size='2' color='#800000'>)";

inline constexpr char D[] = R"(</font></b></td>
<td><b><font face='Arial' size='2' color='#800000'><xsl:value-of select='Standard/@Name'/></font></b></td>
</tr>
<tr>
<td><b><font face='Arial' size='2' color='#800000'>)";

inline constexpr char E[] = R"(</font></b></td>
<td><b><font face='Arial' size='2' color='#800000'><xsl:value-of select='Standard/@Createdby'/></font></b></td>
</tr>
<tr>
<td><b><font face='Arial' size='2' color='#800000'>)";

// The second heading.
inline constexpr char F[] = R"(</font></b></td>
<td><b><font face='Arial' size='2' color='#800000'><xsl:value-of select='Standard/@CreatedOn'/></font></b></td>
</tr>
</table>
<br/>
<hr color='SaddleBrown' size='3' align='center'/>
<br/><br/>
<p align='center'><u><a name='Standard Definition'><b><font color='DarkBlue' face='Arial' size='6'>)";

// The heads of the table of checks.
inline constexpr char G[] = R"(</font></b></a></u></p>
<table border='1' width='80%'>
<tr>
<th width='33%' bgcolor='#000088'><b><font face='Arial' size='2' color='#FFFF00'>)";

inline constexpr char H[] = R"(</font></b></th>
<th width='33%' bgcolor='#000088'><b><font face='Arial' size='2' color='#FFFF00'>)";

// The checks that are in force. Of the containers only these three stand under a heading of their own.
inline constexpr char I[] = R"(</font></b></th>
</tr>
<xsl:for-each select='Standard/Check[@LifeStatus!="1"]'>
<xsl:choose>
<xsl:when test='@Type=105 or @Type=303 or @Type=310'>
<tr>
<td colspan='3' align='center'><b><font face='Arial' size='3' color='#008000'><xsl:value-of select='@Name'/></font></b></td>
</tr>
<xsl:for-each select='Check[@LifeStatus!="1"]'>
<xsl:call-template name='CommonCode'/>
</xsl:for-each>
</xsl:when>
<xsl:otherwise>
<xsl:call-template name='CommonCode'/>
</xsl:otherwise>
</xsl:choose>
</xsl:for-each>
</table>
</body>
</html>
</xsl:template>
</xsl:stylesheet>
)";

} // namespace StylesheetPieces
