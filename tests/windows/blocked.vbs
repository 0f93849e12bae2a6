' Sits in a call that takes an hour, to be killed there.
Dim testSet
Set testSet = CreateObject("VorlanSim.TestSet")
testSet.RealTime = True
WScript.Echo "waiting"
testSet.Sleep 3600
