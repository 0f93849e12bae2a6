' Messages both ways, arguments by reference, indexed properties, errors, values of every kind.
Dim sent, message, received, functions, request, collection, testSet
Set sent = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
sent.Initialize Nothing
sent.PRstr_CloseReason = "00000011"
sent.prstr_moreinfolen = "00000001"
sent.PRstr_MoreInfo = "11110000"
Set message = CreateObject("VorlanSim.MessageObject")
Equal "CreateMessage", sent.CreateMessage(message), True
Equal "octets", message.Hex, "01 03 01 F0"
Equal "an octet", message.Octet(3), 240
Equal "Length", message.Length, 32
Set received = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
Set received.PRobj_MessageObject = message
Equal "decoded", received.PRstr_MoreInfo, "11110000"
Equal "the whole string", received.PRstr_MessageString, "00000001000000110000000111110000"

message.Octet(2) = 7
Equal "an indexed property set", message.Octet(2), 7
Set request = CreateObject("Vorlan.SB_Con_MsgRouteUpdateRequest")
request.PRstr_SectorCount = "00010"
request.PRstr_SectorPilotPN(1) = "010101010"
Equal "element 0", request.PRstr_SectorPilotPN(0), "000000000"
Equal "element 1", request.PRstr_SectorPilotPN(1), "010101010"
Set testSet = CreateObject("VorlanSim.TestSet")
Holds "a collection's default member", testSet.ForwardChannels("FC_SECTOR 0") Is testSet.ForwardChannels.Item("FC_SECTOR 0")

' By reference: the caller's variable changes, and keeps its type where the value fits.
Dim value, width, bits, short, report
Set functions = CreateObject("Vorlan.SB_GeneralFunctions")
value = -5
width = 8
functions.LongToBin value, width
Equal "the width of a negative number", width, 7
bits = "101"
functions.AddPadding bits
Equal "padding", bits, "10100000"
short = "0011"
functions.AddPadding (short)
Equal "a value in brackets stays", short, "0011"
Equal "an optional argument left out", functions.CalculateCentreFrequency(0, 384), 881.52
Equal "an optional argument given", functions.CalculateCentreFrequency(0, 384, False), 836.52
Set report = testSet.TestReport
functions.LogScriptHeader report, "Script", "What it does", , "SECTOR 0"
Holds "an optional argument left out in the middle", InStr(report.Text, "SECTOR 0") > 0
functions.LogScriptSpecificParameters report, Array("One", "Two"), Array(1, "2")
Holds "arrays", InStr(report.Text, "Two") > 0
Equal "a Byte", functions.LongToBin(CByte(200), 8), "11001000"
Equal "a Currency", functions.DecToBin(CCur(2.5), 8), "00000010"
Equal "a Date", TypeName(CreateObject("Vorlan.SB_Sector").PRdte_ConnReqReceivedTime), "Date"

' Errors are the script's own error object; the object stays as it was.
On Error Resume Next
sent.PRstr_CloseReason = "11"
Raised "a wrong width", 1, "SB_Ses_MsgSessionClose.PRstr_CloseReason", "Length of <CloseReason> field should be 8 bits."
Equal "unchanged", sent.PRstr_CloseReason, "00000011"
sent.PRstr_MessageID = "00000001"
Equal "a property that is read only", Err.Number, 438
Err.Clear
functions.LongToBin 5
Raised "an argument too few", 450, "SB_GeneralFunctions.LongToBin", "Wrong number of arguments or invalid property assignment"
functions.BinToDec "1111111111111111111"
Equal "overflow", Err.Number, 6
Err.Clear
functions.MsgToBinString Null
Equal "an object is due", Err.Number, 13
Err.Clear
testSet.ForwardChannels.Item "no such key"
Equal "subscript", Err.Number, 9
Err.Clear
On Error Goto 0
