' A whole session against the simulated test set, as examples/session.py runs it. Argument: the parameter file.
Dim testSet, sector, parameters, reverse, transaction, started
Set testSet = CreateObject("VorlanSim.TestSet")
Set parameters = CreateObject("Vorlan.SB_GlobalParameters")
parameters.PRstr_FileName = WScript.Arguments(0)
parameters.Initialize "SECTOR 0"
Set sector = CreateObject("Vorlan.SB_Sector")
Set sector.PRobj_GlobalParameters = parameters
Set sector.PRobj_TestSet = testSet
Set sector.PRobj_TestReport = testSet.TestReport
Set sector.PRobj_FChCollection = testSet.ForwardChannels
Set sector.PRobj_RCHCollection = testSet.ReverseTrafficChannels
Set sector.PRobj_AccChCollection = testSet.AccessChannels
Set sector.PRobj_SubType1AccChCollection = testSet.SubType1AccessChannels
Set sector.PRobj_SubType2AccChCollection = testSet.SubType2AccessChannels
Set sector.PRobj_RevTrafficChannel = testSet.ReverseTrafficChannels.Item("RTC_SECTOR 0")
Set sector.PRobj_EvSignalling = testSet.Signalling
Set sector.PRobj_EvProtocolController = testSet.ProtocolController
Set sector.PRobj_RadioChannelEmulator = testSet.RadioChannelEmulator

sector.ConfigureFwdAndAccChannel True, 0
Equal "opened", sector.StartSessionNegotiationFromAN, True
transaction = 0
Equal "closed", sector.EndSessionNegotiationFromAN(transaction), True
Equal "the terminal's last TransactionID", transaction, sector.PRint_LastTransactionIDFromAT
Equal "acquired", sector.AcquireReverseTrafficChannel, True
Set reverse = CreateObject("Vorlan.SB_PROT_RevTrafficChannel")
reverse.Initialize parameters, testSet.Signalling, testSet.Signalling.Messages
reverse.NegotiateRateParametersAttribute
reverse.NegotiatePowerParametersAttribute
sector.PR_intReferenceVelocity = 30
sector.PR_intNumPath = 2
parameters.PRbln_FadingEnabled = True
sector.EnableFading
sector.SetGainAndDelay 1, -3.0, 0.0
sector.SetGainAndDelay 2, -6.0, Null
sector.NegotiateFTAP True, True, False, False
sector.EnableFTAPTestPktFlow
started = Timer
sector.LowerLevel 10.0, 20
sector.RaiseLevel 5.0, 20
Holds "simulated waits pass at once", Timer - started < 20
Holds "but the simulated clock knows them", testSet.Time >= 40
sector.DisableFTAPTestPktFlow
sector.SendFTAPClearStats
sector.DestoyFadingObjects
sector.CleanUp
Equal "nothing that the terminal complains of", UBound(testSet.AccessTerminal.Complaints), -1
