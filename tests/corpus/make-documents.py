#!/usr/bin/env python3
"""Writes the documents in tests/corpus/documents/ and what is expected of each into documents.txt.

A test opens every one of them. Those that would be large are made by the test itself. Running this again
gives the same bytes.
"""
import pathlib

HERE = pathlib.Path(__file__).parent
OUT = HERE / "documents"
TABLE = []

CHECK = ('<Check Type="312" Name="n" Status="0" LifeStatus="0" Criticality="1" IsACSupported="1" Summary="">'
         '<Parameter Name="p" Type="1742" CorrectionValue="2"><Operator>2</Operator>'
         '<ParameterType>25</ParameterType><Value>2</Value><Remarks/></Parameter></Check>')
HEAD = '<Standard Name="" Createdby="d" CreatedOn="" Unit="0" AngularUnit="0" Version="2026" RunRWConfigOption="0"'
GOOD = HEAD + ">" + CHECK + "</Standard>"


def doc(name, content, expected):
    data = content if isinstance(content, bytes) else content.encode()
    assert len(data) <= 16384, name
    assert name not in dict(TABLE), name
    (OUT / (name + ".xml")).write_bytes(data)
    TABLE.append((name, expected))


def standard(inside="", attributes=""):
    return HEAD + attributes + ">" + inside + "</Standard>"


def check(attributes="", inside="", type="312"):
    return f'<Check Type="{type}" LifeStatus="0" Criticality="1"{attributes}>{inside}</Check>'


def parameter(values="<Value>2</Value>", op="2", type="1742", correction="2"):
    return (f'<Parameter Type="{type}" CorrectionValue="{correction}"><Operator>{op}</Operator>'
            f'<ParameterType>25</ParameterType>{values}<Remarks/></Parameter>')


def entities():
    lol = "".join(f'<!ENTITY l{i} "{("&l%d;" % (i - 1)) * 10}">' for i in range(1, 10))
    doc("entity-bomb-nested", f'<!DOCTYPE a [<!ENTITY l0 "lol">{lol}]><Standard>&l9;</Standard>', "doctype")
    doc("entity-bomb-quadratic",
        f'<!DOCTYPE a [<!ENTITY a "{"x" * 8000}">]><Standard>{"&a;" * 2000}</Standard>', "doctype")
    doc("entity-bomb-attribute",
        f'<!DOCTYPE a [<!ENTITY l0 "lol">{lol}]><Standard Name="&l9;"/>', "doctype")
    doc("entity-bomb-default-attribute",
        f'<!DOCTYPE a [<!ENTITY l0 "lol">{lol}<!ATTLIST Standard Name CDATA "&l9;">]><Standard/>', "doctype")
    pe = "".join(f'<!ENTITY &#37; p{i} "{("&#37;p%d;" % (i - 1)) * 10}">' for i in range(1, 8))
    doc("entity-bomb-parameter", f'<!DOCTYPE a [<!ENTITY % p0 "<!-- -->">{pe}%p7;]><Standard/>', "doctype")
    doc("entity-recursive", '<!DOCTYPE a [<!ENTITY a "&b;"><!ENTITY b "&a;">]><Standard>&a;</Standard>', "doctype")
    doc("entity-recursive-self", '<!DOCTYPE a [<!ENTITY a "&a;">]><Standard Name="&a;"/>', "doctype")
    doc("entity-recursive-parameter", '<!DOCTYPE a [<!ENTITY % a "%b;"><!ENTITY % b "%a;">%a;]><Standard/>', "doctype")
    doc("entity-harmless", '<!DOCTYPE a [<!ENTITY a "x">]><Standard>&a;</Standard>', "doctype")
    doc("entity-redefines-lt", '<!DOCTYPE a [<!ENTITY lt "&#38;#60;">]><Standard>&lt;</Standard>', "doctype")
    doc("entity-undeclared", standard("&mystery;"), "damaged")
    doc("entity-undeclared-attribute", standard("", ' x="&mystery;"'), "damaged")
    doc("entity-undeclared-many", standard("&a;" * 4000), "damaged")
    doc("entity-parameter-outside", standard("%a;") + "%a;", "damaged")
    doc("entity-html-names", standard("&nbsp;&eacute;"), "damaged")
    doc("entity-predefined", standard(check(' Name="&lt;&gt;&amp;&quot;&apos;"')), "opened")
    doc("entity-no-semicolon", standard("&lt"), "damaged")
    doc("entity-bare-ampersand", standard(" a & b "), "damaged")


def external():
    for name, uri in {"file": "file:///etc/passwd", "path": "/etc/hostname", "relative": "../../secret.txt",
                      "http": "http://127.0.0.1:9/x", "https": "https://127.0.0.1:9/x",
                      "ftp": "ftp://127.0.0.1:9/x", "php": "php://filter/read=convert.base64-encode/resource=/etc/passwd",
                      "data": "data:text/plain,x", "jar": "jar:file:///tmp/x.zip!/x", "expect": "expect://id",
                      "unc": "\\\\127.0.0.1\\share\\x", "dev": "file:///dev/zero", "fifo": "file:///proc/self/fd/0",
                      "netdoc": "netdoc:///etc/passwd", "gopher": "gopher://127.0.0.1:9/_x"}.items():
        doc(f"external-entity-{name}",
            f'<!DOCTYPE a [<!ENTITY x SYSTEM "{uri}">]><Standard>&x;</Standard>', "doctype")
    doc("external-entity-public",
        '<!DOCTYPE a [<!ENTITY x PUBLIC "-//X//Y" "http://127.0.0.1:9/x">]><Standard>&x;</Standard>', "doctype")
    doc("external-entity-attribute",
        '<!DOCTYPE a [<!ENTITY x SYSTEM "file:///etc/passwd">]><Standard Name="&x;"/>', "doctype")
    doc("external-parameter-entity",
        '<!DOCTYPE a [<!ENTITY % x SYSTEM "http://127.0.0.1:9/x.dtd">%x;]><Standard/>', "doctype")
    doc("external-parameter-exfiltrates",
        '<!DOCTYPE a [<!ENTITY % f SYSTEM "file:///etc/passwd"><!ENTITY % e "<!ENTITY &#37; s SYSTEM '
        "'http://127.0.0.1:9/?%f;'>\">%e;%s;]><Standard/>", "doctype")
    doc("external-unparsed",
        '<!DOCTYPE a [<!NOTATION n SYSTEM "x"><!ENTITY x SYSTEM "file:///etc/passwd" NDATA n>]><Standard/>', "doctype")
    doc("external-notation", '<!DOCTYPE a [<!NOTATION n SYSTEM "file:///bin/sh">]><Standard/>', "doctype")


def doctypes():
    doc("doctype-bare", "<!DOCTYPE Standard><Standard/>", "doctype")
    doc("doctype-system", '<!DOCTYPE Standard SYSTEM "file:///tmp/x.dtd"><Standard/>', "doctype")
    doc("doctype-system-http", '<!DOCTYPE Standard SYSTEM "http://127.0.0.1:9/x.dtd"><Standard/>', "doctype")
    doc("doctype-public", '<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0//EN" "http://127.0.0.1:9/x.dtd"><Standard/>', "doctype")
    doc("doctype-internal-empty", "<!DOCTYPE Standard []><Standard/>", "doctype")
    doc("doctype-after-declaration", '<?xml version="1.0"?>\n<!DOCTYPE Standard []>\n<Standard/>', "doctype")
    doc("doctype-after-comment", "<!-- a --><!-- b --><!DOCTYPE Standard []><Standard/>", "doctype")
    doc("doctype-after-instruction", "<?a b?><!DOCTYPE Standard []><Standard/>", "doctype")
    doc("doctype-after-instruction-with-tag", "<?a ><!-- ?><!DOCTYPE Standard []><Standard/><!-- -->", "doctype")
    doc("doctype-after-space", " \n\t<!DOCTYPE Standard []><Standard/>", "doctype")
    doc("doctype-after-root", "<Standard/><!DOCTYPE Standard []>", "doctype")
    doc("doctype-in-root", "<Standard><!DOCTYPE Standard []></Standard>", "doctype")
    doc("doctype-lower-case", "<!doctype Standard []><Standard/>", "doctype")
    doc("doctype-with-space", "<! DOCTYPE Standard []><Standard/>", "doctype")
    doc("doctype-unfinished", "<!DOCTYPE Standard [", "doctype")
    doc("doctype-word-only", "<!DOCTYPE", "doctype")
    doc("doctype-behind-mark", b"\xef\xbb\xbf" + b"<!DOCTYPE Standard []><Standard/>", "doctype")
    for order, mark in (("le", b"\xff\xfe"), ("be", b"\xfe\xff")):
        text = '<!DOCTYPE a [<!ENTITY x "y">]><Standard>&x;</Standard>'.encode("utf-16-" + order)
        doc(f"doctype-utf16-{order}", mark + text, "doctype")
        doc(f"doctype-utf16-{order}-no-mark", text, "doctype")
    doc("doctype-latin1", b'<?xml version="1.0" encoding="ISO-8859-1"?><!DOCTYPE a []><Standard N="\xe9"/>', "doctype")
    doc("doctype-shift-jis",
        '<?xml version="1.0" encoding="Shift_JIS"?><!-- 表 --><!DOCTYPE a []><Standard/>'.encode("shift_jis"), "doctype")
    doc("doctype-in-false-comment",
        '<!--><x y="--><!DOCTYPE a [<!ENTITY e "boom">]><a>&e;</a><!--"></x>-->', "doctype")
    doc("doctype-in-false-instruction", "<?><!DOCTYPE a []><a/><!--?>-->", "damaged")
    doc("doctype-in-cdata", standard("<![CDATA[<!DOCTYPE a []>]]>"), "opened")
    doc("doctype-in-comment", "<!-- <!DOCTYPE a []> -->" + GOOD, "opened")
    doc("doctype-in-attribute", '<Standard Name="<!DOCTYPE a>"/>', "damaged")
    doc("doctype-after-quote-in-tag", '<Standard "><!DOCTYPE a []><a/>', "damaged")
    doc("doctype-after-quote-in-end-tag", "<a></a '><!DOCTYPE a []>'>", "doctype")
    doc("doctype-element-declaration", "<!ELEMENT a ANY><Standard/>", "doctype")
    doc("doctype-conditional-section", "<![INCLUDE[<Standard/>]]>", "doctype")


def fetching():
    doc("fetch-xinclude", '<Standard xmlns:xi="http://www.w3.org/2001/XInclude">'
        '<xi:include href="file:///etc/passwd" parse="text"/></Standard>', "opened")
    doc("fetch-xinclude-fallback", '<Standard xmlns:xi="http://www.w3.org/2001/XInclude"><xi:include '
        'href="http://127.0.0.1:9/x"><xi:fallback><Check Type="101"/></xi:fallback></xi:include></Standard>', "opened")
    doc("fetch-xinclude-root", '<xi:include xmlns:xi="http://www.w3.org/2001/XInclude" href="/etc/passwd"/>', "opened")
    doc("fetch-stylesheet", '<?xml-stylesheet type="text/xsl" href="http://127.0.0.1:9/x.xsl"?>' + GOOD, "opened")
    doc("fetch-stylesheet-file", '<?xml-stylesheet type="text/xsl" href="file:///etc/passwd"?>' + GOOD, "opened")
    doc("fetch-stylesheet-names-encoding", '<?xml-stylesheet href="x" encoding="UTF-7"?>' + GOOD, "opened")
    doc("fetch-base", standard(check(' xml:base="http://127.0.0.1:9/"')), "opened")
    doc("fetch-schema-location", '<Standard xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
        'xsi:schemaLocation="u http://127.0.0.1:9/x.xsd" xsi:noNamespaceSchemaLocation="http://127.0.0.1:9/y.xsd"/>', "opened")
    doc("fetch-xslt-document", '<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">'
        '<xsl:include href="file:///etc/passwd"/></xsl:stylesheet>', "opened")
    doc("fetch-catalog-instruction", '<?oasis-xml-catalog catalog="http://127.0.0.1:9/c.xml"?>' + GOOD, "opened")
    doc("fetch-svg-image", '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink">'
        '<image xlink:href="file:///etc/passwd"/></svg>', "opened")


def shapes():
    doc("deep-64", "<a>" * 64 + "</a>" * 64, "opened")
    doc("deep-65", "<a>" * 65 + "</a>" * 65, "deep")
    doc("deep-100", "<a>" * 100 + "</a>" * 100, "deep")
    doc("deep-1000", "<a>" * 1000 + "</a>" * 1000, "deep")
    doc("deep-unclosed", "<a>" * 4000, "deep")
    doc("deep-checks", standard("<Check Type=\"101\">" * 60 + "</Check>" * 60), "opened")
    doc("deep-behind-end-tags", "</a>" * 50 + "<a>" * 100 + "</a>" * 100, "damaged")
    doc("attributes-256", "<a" + "".join(f' a{i}=""' for i in range(256)) + "/>", "opened")
    doc("attributes-257", "<a" + "".join(f' a{i}=""' for i in range(257)) + "/>", "attributes")
    doc("attribute-twice", '<Standard Unit="1" Unit="2"/>', "damaged")
    doc("attribute-twice-by-prefix", '<a xmlns:x="u" xmlns:y="u" x:b="1" y:b="2"/>', "damaged")
    doc("attribute-no-quotes", "<Standard Unit=1/>", "damaged")
    doc("attribute-no-value", "<Standard Unit/>", "damaged")
    doc("attribute-no-space", '<Standard Unit="1"Name="2"/>', "damaged")
    doc("attribute-open-quote", '<Standard Name="x/>', "damaged")
    doc("attribute-wrong-quote", "<Standard Name=\"x'/>", "damaged")
    doc("attribute-holds-tag", '<Standard Name="<Check/>"/>', "damaged")
    doc("attribute-holds-end", standard(check(' Name="a > b /> ]]> --> ?>"')), "opened")
    doc("attribute-white-space", standard(check(' Name=" a\n\tb\r\nc "')), "opened")
    doc("attribute-white-space-references", standard(check(' Name="&#9;&#10;&#13;&#32;"')), "opened")
    doc("name-with-digit", "<1a/>", "damaged")
    doc("name-with-blank", "<a b c/>", "damaged")
    doc("name-with-letters-of-all-scripts", "<Ж中é/>", "opened")
    doc("name-with-control", b"<a\x02/>", "damaged")
    doc("name-with-colons", "<a:b:c/>", "damaged")
    doc("name-begins-with-colon", "<:a/>", "damaged")
    doc("name-with-emoji", "<\U0001F600/>", "opened")
    doc("name-empty", "<></>", "damaged")
    doc("name-long", "<" + "a" * 16000 + "/>", "opened")
    doc("name-mismatch-long", "<" + "a" * 16000 + "></b>", "damaged")
    doc("names-many", standard("".join(f"<n{i}/>" for i in range(1500))), "opened")
    doc("namespaces-64", "<a" + "".join(f' xmlns:p{i}="u"' for i in range(64)) + "/>", "opened")
    doc("namespaces-65", "<a" + "".join(f' xmlns:p{i}="u"' for i in range(65)) + "/>", "names")
    doc("namespaces-many-default", "<a>" + '<b xmlns="u"/>' * 70 + "</a>", "names")


def unfinished():
    for name, text in {"tag": "<Standard", "element": "<Standard><Check>", "end-tag": "<Standard></Standard",
                       "comment": "<Standard/><!-- ", "comment-start": "<Standard><!-", "cdata": "<Standard><![CDATA[x",
                       "cdata-start": "<Standard><![CDA", "instruction": "<Standard/><?x ", "declaration": "<?xml version=",
                       "attribute": "<Standard Name", "value": '<Standard Name="', "reference": "<Standard>&#1",
                       "bracket": "<", "bracket-at-end": GOOD + "<", "slash": "</", "mark": "<!", "question": "<?"}.items():
        doc("unfinished-" + name, text, "doctype" if name in ("comment-start", "cdata-start", "mark") else "damaged")
    doc("crossed-tags", "<Standard><a><b></a></b></Standard>", "damaged")
    doc("end-only", "</Standard>", "damaged")
    doc("wrong-case", "<Standard></standard>", "damaged")
    doc("two-roots", GOOD + GOOD, "damaged")
    doc("text-after-root", GOOD + "x", "damaged")
    doc("text-before-root", "x" + GOOD, "damaged")
    doc("space-after-root", GOOD + "\n \t\r\n", "opened")
    doc("end-tag-after-root", GOOD + "</Standard>", "damaged")
    doc("cdata-after-root", GOOD + "<![CDATA[x]]>", "damaged")
    doc("no-root-comment", "<!-- only -->", "damaged")
    doc("no-root-declaration", '<?xml version="1.0"?>', "damaged")
    doc("empty", "", "empty")
    doc("white-space", " \r\n\t ", "damaged")
    doc("byte-order-mark-only", b"\xef\xbb\xbf", "empty")
    doc("byte-order-mark-only-utf16", b"\xff\xfe", "empty")
    doc("one-byte", "S", "damaged")
    doc("archive", b"PK\x03\x04\x14\0\0\0\0\0" + bytes(30), "bytes")
    doc("pdf", b"%PDF-1.7\n%\xe2\xe3\xcf\xd3\n", "bytes")
    doc("picture", b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR", "bytes")
    doc("json", '{"Standard": []}', "damaged")
    doc("html", "<html><head><meta charset=utf-8><br></html>", "damaged")


def encodings():
    text = standard(check(' Name="é中\U0001F600"'))
    doc("utf8-mark", b"\xef\xbb\xbf" + text.encode(), "opened")
    doc("utf8-mark-twice", b"\xef\xbb\xbf\xef\xbb\xbf" + text.encode(), "opened")
    doc("utf8-mark-in-text", standard(check(' Name="\ufeff"') + "\ufeff"), "opened")
    doc("utf8-mark-between", '<?xml version="1.0"?>\ufeff' + GOOD, "damaged")
    for order, mark in (("le", b"\xff\xfe"), ("be", b"\xfe\xff")):
        wide = text.encode("utf-16-" + order)
        doc(f"utf16-{order}", mark + wide, "opened")
        doc(f"utf16-{order}-no-mark", wide, "opened")
        doc(f"utf16-{order}-declared", mark + ('<?xml version="1.0" encoding="utf-16"?>' + text).encode("utf-16-" + order), "opened")
        doc(f"utf16-{order}-declared-utf8", mark + ('<?xml version="1.0" encoding="utf-8"?>' + text).encode("utf-16-" + order), "opened")
        doc(f"utf16-{order}-odd-length", mark + wide + b"<", "bytes")
        doc(f"utf16-{order}-high-surrogate-alone", mark + "<a>".encode("utf-16-" + order) + "\ud800x".encode("utf-16-" + order, "surrogatepass") + "</a>".encode("utf-16-" + order), "bytes")
        doc(f"utf16-{order}-low-surrogate-alone", mark + "<a>".encode("utf-16-" + order) + "\udc00x".encode("utf-16-" + order, "surrogatepass") + "</a>".encode("utf-16-" + order), "bytes")
        doc(f"utf16-{order}-nul", mark + "<a>\0</a>".encode("utf-16-" + order), "bytes")
        doc(f"utf16-{order}-noncharacter", mark + "<a>\uffff</a>".encode("utf-16-" + order), "damaged")
        doc(f"utf16-{order}-in-halves", mark + text.encode("utf-16-" + order) + text.encode("utf-16-" + ("be" if order == "le" else "le")), "damaged")
    doc("utf16-wrong-mark", b"\xfe\xff" + text.encode("utf-16-le"), "damaged")
    doc("utf32-le", b"\xff\xfe\0\0" + text.encode("utf-32-le"), "bytes")
    doc("utf32-be", b"\0\0\xfe\xff" + text.encode("utf-32-be"), "bytes")
    doc("utf32-le-no-mark", text.encode("utf-32-le"), "bytes")
    doc("utf32-declared", '<?xml version="1.0" encoding="UTF-32"?>' + GOOD, "encoding")
    doc("utf7", b'<?xml version="1.0" encoding="UTF-7"?>+ADwAIQ-DOCTYPE a [+ADw-!ENTITY e +ACI-x+ACI-+AD4-]+AD4-<Standard/>', "encoding")
    doc("utf7-mark", b"+/v8-<Standard/>", "damaged")
    doc("utf1", b"\xf7\x64\x4c<Standard/>", "bytes")
    doc("scsu", b"\x0e\xfe\xff<Standard/>", "bytes")
    doc("ebcdic", '<?xml version="1.0" encoding="IBM037"?><Standard/>'.encode("cp037"), "bytes")
    doc("ebcdic-declared", '<?xml version="1.0" encoding="IBM037"?>' + GOOD, "encoding")
    doc("iso2022-jp", '<?xml version="1.0" encoding="ISO-2022-JP"?><Standard Name="表"/>'.encode("iso2022_jp"), "encoding")
    doc("latin1", b'<?xml version="1.0" encoding="ISO-8859-1"?><Standard Name="\xe9"/>', "opened")
    doc("latin1-not-declared", b'<Standard Name="\xe9"/>', "bytes")
    doc("latin1-declared-utf8-bytes", '<?xml version="1.0" encoding="ISO-8859-1"?><Standard Name="é"/>', "opened")
    doc("utf8-declared-latin1-bytes", b'<?xml version="1.0" encoding="UTF-8"?><Standard Name="\xe9"/>', "bytes")
    doc("windows-1252", b'<?xml version="1.0" encoding="windows-1252"?><Standard Name="\x80"/>', "opened")
    doc("windows-1252-hole", b'<?xml version="1.0" encoding="windows-1252"?><Standard Name="\x81"/>', "bytes")
    doc("shift-jis", '<?xml version="1.0" encoding="Shift_JIS"?><Standard Name="表示"/>'.encode("shift_jis"), "opened")
    doc("shift-jis-cut", b'<?xml version="1.0" encoding="Shift_JIS"?><Standard Name="\x95"/>', "bytes")
    doc("gb18030", '<?xml version="1.0" encoding="GB18030"?><Standard Name="标准"/>'.encode("gb18030"), "opened")
    doc("ascii-declared-utf8-bytes", '<?xml version="1.0" encoding="US-ASCII"?><Standard Name="é"/>', "opened")
    for name, lie in {"utf16-in-bytes": "UTF-16", "utf16le-in-bytes": "UTF-16LE", "unknown": "x-mystery", "empty": "",
                      "path": "../../lib/evil", "iconv-options": "ISO-8859-1//TRANSLIT", "family-only": "ISO-8859-",
                      "family-path": "ISO-8859-/../x", "family-letters": "WINDOWS-125x", "blank": " UTF-8 ",
                      "ucs4": "UCS-4", "html-entities": "HTML-ENTITIES", "user-defined": "x-user-defined",
                      "long": "A" * 900}.items():
        doc("declared-" + name, f'<?xml version="1.0" encoding="{lie}"?>' + GOOD,
            "damaged" if name == "empty" else "encoding")
    doc("declared-iso-8859-99", '<?xml version="1.0" encoding="ISO-8859-99"?>' + GOOD, "encoding")
    doc("declared-twice", '<?xml version="1.0" encoding="UTF-8" encoding="UTF-16"?>' + GOOD, "damaged")
    doc("declared-late", '<?xml version="1.0"' + " " * 2000 + 'encoding="UTF-7"?>' + GOOD, "encoding")
    doc("declared-without-version", '<?xml encoding="UTF-8"?>' + GOOD, "damaged")


def characters():
    for name, data in {"overlong-2": b"\xc0\xbc", "overlong-3": b"\xe0\x80\xbc", "overlong-4": b"\xf0\x80\x80\xbc",
                       "surrogate": b"\xed\xa0\x80", "surrogate-pair": b"\xed\xa0\xbd\xed\xb8\x80",
                       "beyond": b"\xf4\x90\x80\x80", "five-bytes": b"\xf8\x88\x80\x80\x80", "cut": b"\xe4\xb8",
                       "continuation": b"\x80", "fe": b"\xfe", "ff": b"\xff", "nul": b"\0", "nul-overlong": b"\xc0\x80"}.items():
        doc("utf8-" + name, b"<Standard>" + data + b"</Standard>", "bytes")
    doc("utf8-cut-at-end", b"<Standard/><!--\xe4\xb8", "bytes")
    doc("utf8-overlong-doctype", b"\xc0\xbc!DOCTYPE a []><Standard/>", "bytes")
    doc("nul-after-root", GOOD.encode() + b"\0", "bytes")
    doc("nul-hides-doctype", b"<!DOC\0TYPE a []><Standard/>", "bytes")
    for code in (1, 8, 0xB, 0x1F):
        doc(f"control-{code}", standard(chr(code)), "damaged")
        doc(f"control-{code}-attribute", standard("", f' x="{chr(code)}"'), "damaged")
    doc("control-delete-and-c1", standard("\x7f\x85\x9b"), "opened")
    doc("noncharacter-fffe", standard("\ufffe"), "damaged")
    doc("noncharacter-1fffe", standard("\U0001fffe"), "opened")
    for name, reference in {"0": "&#0;", "1": "&#1;", "x0": "&#x0;", "x1f": "&#x1F;", "xffff": "&#xFFFF;", "xfffe": "&#xFFFE;",
                            "high-surrogate": "&#xD800;", "low-surrogate": "&#xDFFF;", "pair": "&#xD83D;&#xDE00;",
                            "beyond": "&#x110000;", "huge": "&#99999999999999999999;", "huge-hex": "&#x" + "f" * 4000 + ";",
                            "negative": "&#-1;", "empty": "&#;", "empty-hex": "&#x;", "letters": "&#12ab;", "x-capital": "&#X41;"}.items():
        doc("reference-" + name, standard(reference), "damaged")
        doc(f"reference-{name}-attribute", standard("", f' x="{reference}"'), "damaged")
    doc("reference-lt", standard("&#60;Check Type='101'/&#62;"), "opened")
    doc("reference-leading-zeros", standard("&#" + "0" * 4000 + "65;"), "opened")
    doc("references-many", standard("&#65;" * 3000), "opened")
    doc("cdata-nested", standard("<![CDATA[<![CDATA[x]]>]]>"), "damaged")
    doc("cdata-closed-in-text", standard("]]>"), "damaged")
    doc("cdata-split", standard("<![CDATA[]]]]><![CDATA[>]]>"), "opened")
    doc("cdata-lower-case", standard("<![cdata[x]]>"), "doctype")
    doc("cdata-in-attribute", standard("", ' x="<![CDATA[y]]>"'), "damaged")
    doc("cdata-empty-many", standard("<![CDATA[]]>" * 1200), "opened")
    doc("cdata-around-values", standard(check("", parameter("<Value><![CDATA[2]]></Value>"))), "opened")
    doc("comment-double-hyphen", standard("<!-- a -- b -->"), "damaged")
    doc("comment-three-hyphens", standard("<!-- a --->"), "damaged")
    doc("comment-short", standard("<!-->"), "damaged")
    doc("comment-shorter", standard("<!--->"), "damaged")
    doc("comment-begins-like-end", standard("<!-->-->"), "opened")
    doc("comment-in-value", standard(check("", parameter("<Value>1<!-- 9 -->2</Value>"))), "opened")
    doc("comment-in-tag", "<Standard <!-- x --> />", "damaged")
    doc("instruction-xml-inside", standard('<?xml version="1.0"?>'), "damaged")
    doc("instruction-xml-second", '<?xml version="1.0"?><?xml version="1.0"?>' + GOOD, "damaged")
    doc("instruction-xml-capitals", "<?XML version='1.0'?>" + GOOD, "damaged")
    doc("instruction-xml-after-space", ' <?xml version="1.0"?>' + GOOD, "damaged")
    doc("instruction-no-target", standard("<? x?>"), "damaged")
    doc("instruction-short", standard("<?>?>"), "damaged")
    doc("instruction-in-value", standard(check("", parameter("<Value>1<?x y?>2</Value>"))), "opened")
    doc("instruction-php", standard("<?php system('id'); ?>"), "opened")


def declarations():
    doc("version-1.1", '<?xml version="1.1"?>' + GOOD, "opened")
    doc("version-1.1-control", '<?xml version="1.1"?><Standard>&#1;</Standard>', "damaged")
    doc("version-2.0", '<?xml version="2.0"?>' + GOOD, "damaged")
    doc("version-words", '<?xml version="new"?>' + GOOD, "damaged")
    doc("version-empty", '<?xml version=""?>' + GOOD, "damaged")
    doc("version-long", f'<?xml version="1.{"0" * 8000}"?>' + GOOD, "opened")
    doc("standalone-yes", '<?xml version="1.0" standalone="yes"?>' + GOOD, "opened")
    doc("standalone-no", '<?xml version="1.0" standalone="no"?>' + GOOD, "opened")
    doc("standalone-maybe", '<?xml version="1.0" standalone="maybe"?>' + GOOD, "damaged")
    doc("namespace-default", '<Standard xmlns="http://example.com/">' + CHECK + "</Standard>", "opened")
    doc("namespace-prefix", '<x:Standard xmlns:x="u:x">' + CHECK + "</x:Standard>", "opened")
    doc("namespace-prefix-attributes", '<Standard xmlns:x="u:x" x:Unit="5" Unit="0" x:Version="2030"/>', "opened")
    doc("namespace-undeclared", "<x:Standard/>", "damaged")
    doc("namespace-undeclared-attribute", '<Standard x:Unit="1"/>', "damaged")
    doc("namespace-undeclared-many", "<Standard>" + "<x:a/>" * 2000 + "</Standard>", "damaged")
    doc("namespace-redefined", '<x:a xmlns:x="u:1"><x:a xmlns:x="u:2"><x:a xmlns:x="u:1"/></x:a></x:a>', "opened")
    doc("namespace-undone", '<Standard xmlns="u:x"><Check xmlns="" Type="101"/></Standard>', "opened")
    doc("namespace-prefix-undone", '<x:a xmlns:x="u:x"><x:a xmlns:x=""/></x:a>', "damaged")
    doc("namespace-xml-bound-wrongly", '<a xmlns:xml="u:x"/>', "damaged")
    doc("namespace-xmlns-bound", '<a xmlns:xmlns="u:x"/>', "damaged")
    doc("namespace-two-prefixes-of-xml", '<a xmlns:x="http://www.w3.org/XML/1998/namespace"/>', "damaged")
    doc("namespace-with-markup", '<a xmlns:x="a&lt;b"/>', "damaged")
    doc("namespace-with-ampersand", '<a xmlns:x="http://x/?a&amp;b"/>', "opened")
    doc("namespace-with-both-quotes", "<a xmlns:x=\"'&quot;\"/>", "damaged")
    doc("namespace-not-ascii", '<a xmlns:x="é"/>', "damaged")
    doc("namespace-relative", '<a xmlns:x="relative/path"/>', "opened")
    doc("namespace-steers-terminal", '<a xmlns:x="\u009b31m\u202e b"/>', "damaged")
    doc("xml-id", '<a xml:id="x"><b xml:id="y"/></a>', "opened")
    doc("xml-id-twice", '<a xml:id="x"><b xml:id="x"/></a>', "opened")
    doc("xml-id-no-name", '<a xml:id="1 2"/>', "opened")
    doc("xml-space", standard('<Check xml:space="preserve" Type="101">  </Check>'), "opened")
    doc("xml-space-odd", standard('<Check xml:space="other" Type="101"/>'), "opened")
    doc("xml-lang-odd", standard('<Check xml:lang="!!" Type="101"/>'), "opened")


def standards():
    doc("good", GOOD, "opened")
    doc("good-empty", HEAD + "/>", "opened")
    for name, value in {"2147483647": "2147483647", "2147483648": "2147483648", "minus-1": "-1", "1e99": "1e99",
                        "0": "0", "empty": "", "letters": "abc", "long": "9" * 4000, "hex": "0x65", "blank": " 101",
                        "arabic-digits": "١٠١"}.items():
        doc("type-" + name, standard(check("", parameter(), value)), "opened")
    doc("type-missing", standard("<Check/>"), "opened")
    doc("type-repeated", standard('<Check Type="101"/>' * 700), "opened")
    for name, attributes in {"criticality-huge": ' Criticality="99999999999999999999"', "criticality-minus": ' Criticality="-5"',
                             "criticality-letters": ' Criticality="high"', "life-status-letters": ' LifeStatus="dead"',
                             "life-status-huge": ' LifeStatus="4294967297"', "life-status-minus": ' LifeStatus="-2147483648"',
                             "life-status-missing": "", "name-markup": ' Name="&lt;Check/&gt;"'}.items():
        doc("check-" + name, standard(f'<Check Type="312"{attributes}>{parameter()}</Check>'), "opened")
    doc("unit-huge", HEAD.replace('Unit="0"', 'Unit="99999999999"', 1) + "/>", "opened")
    doc("unit-minus", HEAD.replace('Unit="0"', 'Unit="-7"', 1) + "/>", "opened")
    doc("unit-letters", HEAD.replace('Unit="0"', 'Unit="mm"', 1) + "/>", "opened")
    doc("option-huge", HEAD.replace('Option="0"', 'Option="99999"') + "/>", "opened")
    doc("option-letters", HEAD.replace('Option="0"', 'Option="x"') + "/>", "opened")
    doc("version-of-standard-huge", HEAD.replace("2026", "99999999999999") + "/>", "opened")
    doc("version-of-standard-missing", "<Standard/>", "opened")
    doc("parameter-without-operator", standard(check("", '<Parameter Type="1742"><Value>2</Value></Parameter>')), "opened")
    doc("parameter-operator-twice", standard(check("", '<Parameter Type="1742"><Operator>1</Operator><Operator>2</Operator><Value>2</Value></Parameter>')), "opened")
    doc("parameter-operator-odd", standard(check("", parameter(op="-3"))), "opened")
    doc("parameter-operator-huge", standard(check("", parameter(op="4294967297"))), "opened")
    doc("parameter-operator-nested", standard(check("", parameter(op="<b>2</b>"))), "opened")
    doc("parameter-range-of-three", standard(check("", parameter("<Value>1</Value><Value>2</Value><Value>3</Value>", op="1"))), "opened")
    doc("parameter-values-odd", standard(check("", parameter("<Value/><Value>x</Value><Value>1e400</Value><Value>-2147483649</Value><Value>nan</Value><Value>1,5</Value>"))), "opened")
    doc("parameter-values-many", standard(check("", parameter("<Value>2</Value>" * 900))), "opened")
    doc("parameter-type-odd", standard(check("", parameter(type="99999999999999999999"))), "opened")
    doc("parameter-by-name", standard(check("", '<Parameter Name="x"><Operator>2</Operator><Value>2</Value></Parameter>')), "opened")
    doc("parameters-many", standard(check("", parameter() * 100)), "opened")
    doc("parameters-many-that-do-not-match", standard(check("", '<Parameter Type="1"/>' * 700)), "opened")
    doc("correction-odd", standard(check("", parameter(correction="&lt;1e400"))), "opened")
    doc("correction-only-elsewhere", standard(check("", '<Parameter Type="1" CorrectionValue="9"/>' + parameter(correction=""))), "opened")
    doc("children-of-plain-check", standard(check("", check() * 5)), "opened")
    for container in ("103", "122", "124", "127", "608"):
        doc("children-" + container, standard(check("", check("", parameter()) * 20, container)), "opened")
    doc("old-by-name", '<Standard Version="2019"><Check Type="312" Name="n"><Parameter Name="p"><Operator>2</Operator>'
        '<Value>2</Value></Parameter></Check></Standard>', "opened")
    doc("other-root", "<Rules><Check Type='101'/></Rules>", "opened")
    doc("result-document", '<Standard><Check Type="101"><Result><Check Type="101"/></Result></Check></Standard>', "opened")
    doc("text-between", standard("junk" + CHECK + "<Other/>junk"), "opened")


OUT.mkdir(exist_ok=True)
for old in OUT.glob("*.xml"):
    old.unlink()
for family in (entities, external, doctypes, fetching, shapes, unfinished, encodings, characters, declarations, standards):
    family()
(HERE / "documents.txt").write_text("".join(f"{name} {expected}\n" for name, expected in TABLE))
print(len(TABLE), "documents")
