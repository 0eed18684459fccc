// One class for each check that is on or off, with its own numbers: check type, template, icon, caption and
// help topic.
#pragma once

#include "dialogs/PlainCheckDlg.h"

class CReferenceUptoDateDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CReferenceUptoDateDlg(EditingHost& host) : CPlainCheckDlg(host, 107, 1541, 1148, 1593, 1005) {}
};

class COverriddenMassPropertiesDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit COverriddenMassPropertiesDlg(EditingHost& host)
        : CPlainCheckDlg(host, 118, 1558, 1250, 1949, 1017) {}
};

class CAnnSpellCheckerDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CAnnSpellCheckerDlg(EditingHost& host) : CPlainCheckDlg(host, 203, 1557, 1249, 1691, 1104) {}
};

class CGTOLDatumDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CGTOLDatumDlg(EditingHost& host) : CPlainCheckDlg(host, 301, 1074, 1160, 1595, 1103) {}
};

class CDrawingDocOverlapViewDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CDrawingDocOverlapViewDlg(EditingHost& host)
        : CPlainCheckDlg(host, 307, 1071, 1168, 1587, 1303) {}
};

class CBOMBalloonDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CBOMBalloonDlg(EditingHost& host) : CPlainCheckDlg(host, 309, 1537, 1143, 1597, 1305) {}
};

class CDrawingDocDanglingDimensionDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CDrawingDocDanglingDimensionDlg(EditingHost& host)
        : CPlainCheckDlg(host, 313, 1570, 1401, 1958, 1307) {}
};

class COverriddenDimensionDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit COverriddenDimensionDlg(EditingHost& host) : CPlainCheckDlg(host, 401, 1072, 1163, 1589, 1201) {}
};

class COverlapDimDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit COverlapDimDlg(EditingHost& host) : CPlainCheckDlg(host, 406, 1073, 1165, 1591, 1205) {}
};

class CDimReplacedOriginalTextDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CDimReplacedOriginalTextDlg(EditingHost& host)
        : CPlainCheckDlg(host, 407, 1567, 1260, 2271, 1206) {}
};

class CAssemErrorMatesDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CAssemErrorMatesDlg(EditingHost& host) : CPlainCheckDlg(host, 602, 1538, 1174, 1601, 1502) {}
};

// No command makes it: the check is not offered, but stands in files. It has no help.
class CHiddenCompDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CHiddenCompDlg(EditingHost& host) : CPlainCheckDlg(host, 605, 1561, 1255, 1733, 0) {}
};

class CSupCompDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CSupCompDlg(EditingHost& host) : CPlainCheckDlg(host, 606, 1562, 1256, 1736, 1505) {}
};

class CFeatureErrorDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CFeatureErrorDlg(EditingHost& host) : CPlainCheckDlg(host, 701, 1539, 1178, 1600, 1601) {}
};

class CFeatFullyDefinedSketchDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CFeatFullyDefinedSketchDlg(EditingHost& host)
        : CPlainCheckDlg(host, 702, 1540, 1177, 1599, 1602) {}
};

class CStdHolesSizesDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CStdHolesSizesDlg(EditingHost& host) : CPlainCheckDlg(host, 703, 1560, 1251, 1995, 1603) {}
};

class CSupFeatDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CSupFeatDlg(EditingHost& host) : CPlainCheckDlg(host, 704, 1563, 1257, 1738, 1604) {}
};

class CFeaturePositioningDlg : public CPlainCheckDlg {
    Q_OBJECT

public:
    explicit CFeaturePositioningDlg(EditingHost& host) : CPlainCheckDlg(host, 705, 1577, 1441, 2500, 1605) {}
};
