' What VBScript has of its own in calls: default members, brackets, gaps among the arguments, its types.
Dim functions, testSet, report, bits, started
Set functions = CreateObject("Vorlan.SB_GeneralFunctions")
Set testSet = CreateObject("VorlanSim.TestSet")
Holds "a collection's default member", testSet.ForwardChannels("FC_SECTOR 0") Is testSet.ForwardChannels.Item("FC_SECTOR 0")
bits = "0011"
functions.AddPadding (bits)
Equal "a value in brackets stays", bits, "0011"
Set report = testSet.TestReport
functions.LogScriptHeader report, "Script", "What it does", , "SECTOR 0"
Holds "an optional argument left out in the middle", InStr(report.Text, "SECTOR 0") > 0
functions.LogScriptSpecificParameters report, Array("One", "Two"), Array(1, "2")
Holds "arrays", InStr(report.Text, "Two") > 0
Equal "a Byte", functions.LongToBin(CByte(200), 8), "11001000"
Equal "a Currency", functions.DecToBin(CCur(2.5), 8), "00000010"
Equal "a Date", TypeName(CreateObject("Vorlan.SB_Sector").PRdte_ConnReqReceivedTime), "Date"
Set report = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
On Error Resume Next
bits = report.PRstr_CloseReason("x")
Raised "more arguments than a property has", 450, "SB_Ses_MsgSessionClose.PRstr_CloseReason", _
  "Wrong number of arguments or invalid property assignment"
On Error Goto 0
started = Timer
testSet.Sleep 20
Holds "simulated waits pass at once", Timer - started < 20
Holds "but the simulated clock knows them", testSet.Time >= 20
