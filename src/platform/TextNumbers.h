// Numbers of the texts that tell why a file could not be read or written. They stand apart from the
// numbers of the tool's other texts, which are told by the tables that use them.
#pragma once

// Why a document is not read.
constexpr unsigned XmlCannotRead = 61001;        // %1 the system's reason
constexpr unsigned XmlTooLarge = 61002;          // %1 the limit in MiB
constexpr unsigned XmlEncoding = 61003;          // an encoding that is not known
constexpr unsigned XmlBadBytes = 61004;          // bytes that are not valid in the encoding
constexpr unsigned XmlDoctype = 61005;           // a document type declaration
constexpr unsigned XmlTooDeep = 61006;           // %1 the limit
constexpr unsigned XmlTooManyAttributes = 61007; // %1 the limit
constexpr unsigned XmlTooManyElements = 61008;
constexpr unsigned XmlNotWellFormed = 61009; // %1 line, %2 the parser's words
constexpr unsigned XmlEmpty = 61010;
constexpr unsigned XmlTooLong = 61011;      // an attribute is too long
constexpr unsigned XmlTooManyNames = 61012; // too many different names or namespaces

// Why an archive is not read or written; %1 is the name in the archive where nothing else is said.
constexpr unsigned ArchiveCannotOpen = 61101;
constexpr unsigned ArchiveDamaged = 61102;      // without a name
constexpr unsigned ArchiveTooManyNames = 61103; // %1 the limit
constexpr unsigned ArchiveNameNotUtf8 = 61104;
constexpr unsigned ArchiveNameTooLong = 61105;
constexpr unsigned ArchiveNameLeavesFolder = 61106; // "..", absolute or with a drive letter
constexpr unsigned ArchiveNameUnusable = 61107;     // empty, ".", or with a control character
constexpr unsigned ArchiveHoldsLink = 61108;
constexpr unsigned ArchiveHoldsSpecial = 61109;
constexpr unsigned ArchiveNameTwice = 61110;
constexpr unsigned ArchiveFileAndFolder = 61111;
constexpr unsigned ArchiveEncrypted = 61112;
constexpr unsigned ArchiveUnknownMethod = 61113;
constexpr unsigned ArchiveOverlap = 61114;
constexpr unsigned ArchiveContradiction = 61115;
constexpr unsigned ArchiveWrongSize = 61116;
constexpr unsigned ArchiveFileDamaged = 61117;
constexpr unsigned ArchiveTooLarge = 61118;       // %1 the limit in MiB
constexpr unsigned ArchiveTooDense = 61119;       // %1 the limit, times its own size
constexpr unsigned ArchiveFileStands = 61120;     // the folder has a file of that name already
constexpr unsigned ArchiveFolderBlocked = 61121;  // a link or a file stands where a folder is needed
constexpr unsigned ArchiveCannotStore = 61122;    // %1 name and the system's reason
constexpr unsigned ArchiveCannotReadFile = 61123; // %1 name and the system's reason
constexpr unsigned ArchiveCannotWrite = 61124;    // %1 the system's reason

// Why a user's file is not replaced; %1 is the system's reason.
constexpr unsigned FileNotWritten = 61201;
constexpr unsigned FolderNotWritable = 61202;
constexpr unsigned FileNotFlushed = 61203;
constexpr unsigned FileNotReplaced = 61204;
constexpr unsigned FileInUse = 61205;
constexpr unsigned FileNotRead = 61206;
constexpr unsigned FileModeNotKept = 61207;
constexpr unsigned FileWriteProtected = 61208;
constexpr unsigned FileNotOrdinary = 61209;
constexpr unsigned FileNotReached = 61210;
constexpr unsigned FolderNotFlushed = 61211; // a warning: the file is written

// The report.
constexpr unsigned ReportPicturesMissing = 61301; // %1 the names of the pictures
constexpr unsigned ReportNotTransformed = 61302;  // %1 the reason
constexpr unsigned ReportPageOf = 61303;          // %1 page, %2 pages
constexpr unsigned ReportStopped = 61304;         // by the user
constexpr unsigned ReportNotDrawn = 61305;        // the device takes no pages

// Why a file is no standard, and what a merge has to tell.
constexpr unsigned PackingNoStandard = 61401;
constexpr unsigned MergeFolderNotMade = 61402;   // %1 the folder
constexpr unsigned MergeLaterVersion = 61403;    // %1 the version
constexpr unsigned MergeRestSkipped = 61404;     // a check without a type
constexpr unsigned MergeFiguresCut = 61405;      // %1 the parameter
constexpr unsigned MergeMoreValues = 61406;      // %1 the parameter
constexpr unsigned MergeCorrectionStays = 61407; // %1 the parameter
constexpr unsigned MergeChildrenStay = 61408;    // lengths of the single checks in a container
constexpr unsigned MergeAnglesStay = 61409;

// The pages of a standard's window.
constexpr unsigned PageEmptyTitle = 62001; // what a page without checks says
constexpr unsigned PageChecksTab = 62002;
constexpr unsigned PageSummaryTab = 62003;
constexpr unsigned PageOptionsTab = 62004;
constexpr unsigned PageEmptyText = 62005;
constexpr unsigned PageGroupEmptyTitle = 62006; // where only the checks of other groups stand
constexpr unsigned PageGroupEmptyText = 62007;
constexpr unsigned PageTabTip = 62008; // %1 the page, %2 its key

// Of the windows.
constexpr unsigned StatusReady = 61701;
constexpr unsigned PrintAtOnceText = 61702;
constexpr unsigned SaveChangesQuestion = 61703; // %1 the file's name
constexpr unsigned SaveFailed = 61704;          // %1 the file
constexpr unsigned FileMissing = 61705;         // %1 the file
constexpr unsigned HelpPageMissing = 61706;     // %1 the topic
constexpr unsigned ButtonSave = 61707;
constexpr unsigned ButtonDiscard = 61708;
constexpr unsigned ButtonCancel = 61709;
constexpr unsigned ButtonOk = 61710;
constexpr unsigned ButtonYes = 61711;
constexpr unsigned ButtonNo = 61712;

// The report window, printing, and what the tool tells of itself.
constexpr unsigned ReportWindowTitle = 61801;    // %1 the standard
constexpr unsigned ReportSavePdf = 61802;        // a button
constexpr unsigned ReportPrint = 61803;          // a button
constexpr unsigned ReportClose = 61804;          // a button
constexpr unsigned ReportPdfFilter = 61805;      // a file dialog's
constexpr unsigned ReportLayingOut = 61806;      // while the number of pages is not known
constexpr unsigned ReportStop = 61807;           // a button
constexpr unsigned ReportStopping = 61808;       // after it was pressed
constexpr unsigned ReportFileNotWritten = 61809; // %1 the file, %2 the reason
constexpr unsigned ReportNotPrinted = 61810;     // %1 the printer, %2 the reason
constexpr unsigned ReportSaving = 61811;         // %1 the file
constexpr unsigned ReportPrinting = 61812;       // %1 the printer
constexpr unsigned ReportSaved = 61813;          // %1 the file
constexpr unsigned ReportNoPrinter = 61814;
constexpr unsigned ReportLarger = 61815;  // a button's tip
constexpr unsigned ReportSmaller = 61816; // a button's tip
constexpr unsigned AboutTitle = 61821;
constexpr unsigned AboutVersion = 61822; // %1 the number
constexpr unsigned AboutPurpose = 61823;
