' What is remembered from one run to the next. Arguments: TransactionID to expect, or any, then the one to leave behind.
Const kKey = "HKEY_CURRENT_USER\Software\VB and VBA Program Settings\1x-EVDOKetra\SessionFields\LastTIDFromAT"
Dim testSet, sector, shell, functions
Set testSet = CreateObject("VorlanSim.TestSet")
Set sector = CreateObject("Vorlan.SB_Sector")
If WScript.Arguments(0) <> "any" Then Equal "remembered", sector.PRint_LastTransactionIDFromAT, CInt(WScript.Arguments(0))
testSet.AccessTerminal.TransactionID = CInt(WScript.Arguments(1))
testSet.AccessTerminal.ConfigurationOrder = Array()
Set sector.PRobj_EvSignalling = testSet.Signalling
sector.StartSessionNegotiationFromAN
Equal "received", sector.PRint_LastTransactionIDFromAT, CInt(WScript.Arguments(1))
Set shell = CreateObject("WScript.Shell")
Equal "where such applications keep it", shell.RegRead(kKey), WScript.Arguments(1)
Set functions = CreateObject("Vorlan.SB_GeneralFunctions")
Equal "GetString", functions.GetString(&H80000001, "Software\VB and VBA Program Settings\1x-EVDOKetra\SessionFields", _
  "LastTIDFromAT"), WScript.Arguments(1)
