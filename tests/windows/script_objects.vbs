' A script's own class instances in place of the test set's objects: they answer name lookups through IDispatchEx alone.
Class Message
  Public Length
  Private octets
  Private Sub Class_Initialize
    octets = Array(0, 0, 0, 0, 0, 0, 0, 0, 0, 0)
  End Sub
  Public Property Get Octet(index)
    Octet = octets(index)
  End Property
  Public Property Let Octet(index, value)
    octets(index) = value
  End Property
End Class

Class Refusing
  Public Property Let Length(value)
    Err.Raise -2147221503, "Refusing.Length", "The test set is not ready."
  End Property
  Public Property Let Octet(index, value)
  End Property
End Class

Class NotReady
  Public Default Property Get Text
    Err.Raise 1234
  End Property
End Class

Class Sector
  Public PRobj_GlobalParameters
  Public PRstr_SectorName
End Class

Dim sent, own, received, held, parameters
Set sent = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
sent.Initialize Nothing
sent.PRstr_CloseReason = "00000101"
Set own = New Message
sent.CreateMessage own
Equal "Length of the script's own object", own.Length, 16
Equal "its first octet", own.Octet(0), 1
Equal "its second octet", own.Octet(1), 5
Set received = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
Set received.PRobj_MessageObject = own
Equal "decoded from it", received.PRstr_CloseReason, "00000101"
Set held = CreateObject("Vorlan.SB_Sector")
Set held.PRobj_TestReport = own
Holds "it comes back as itself", held.PRobj_TestReport Is own

Set parameters = CreateObject("Vorlan.SB_GlobalParameters")
parameters.PRstr_FileName = WScript.Arguments(0)
parameters.Initialize "SECTOR 0"
Set held = New Sector
Set held.PRobj_GlobalParameters = parameters
held.PRstr_SectorName = "SECTOR 0"
Set sent = CreateObject("Vorlan.SB_Ses_MsgUATIAssignment")
sent.Initialize held, Nothing, ""
sent.PRstr_SubnetIncluded = "0"
sent.CreateMessage own
Equal "the configuration reached through the script's sector", own.Length, 64
Equal "its colour code", own.Octet(3), 16

' Arrays that the script declares, values that an object stands for, collections.
Dim fixed(0), free, expression, testSet, channel, found
fixed(0) = 7
parameters.InitialiseArrayForPersonalityCount fixed, 0
Equal "an array of a fixed size", UBound(fixed) & " " & fixed(0), "0 7"
ReDim free(0)
parameters.InitialiseArrayForPersonalityCount free, 1
Equal "one that grows", UBound(free) & " " & free(1), "1 -1"
Set expression = New RegExp
expression.Pattern = "[01]+"
Set sent = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
sent.Initialize Null
sent.PRstr_CloseReason = expression.Execute("x 00000111 y")(0)
Equal "an object's default property", sent.PRstr_CloseReason, "00000111"
Set testSet = CreateObject("VorlanSim.TestSet")
Set channel = testSet.ForwardChannels("FC_SECTOR 0")
For Each channel In testSet.ForwardChannels
  found = found + 1
  Holds "each in its place", channel Is testSet.ForwardChannels(found)
Next
Equal "all of them", found, 1

On Error Resume Next
parameters.InitialiseArrayForPersonalityCount fixed, 1
Equal "an array that cannot grow", Err.Number, 10
Err.Clear
sent.CreateMessage New Refusing
' The host may keep the source and the text of it to itself.
Equal "the script's own error", Err.Number, -2147221503
Err.Clear
sent.PRstr_CloseReason = New NotReady
Equal "an error in a default property", Err.Number, 1234
Err.Clear
sent.PRstr_CloseReason = New Sector
Equal "an object without one", Err.Number, 13
Err.Clear
sent.PRstr_CloseReason = "00000101"
sent.PRstr_MoreInfoLen = "00001100"
sent.PRstr_MoreInfo = String(96, "0")
sent.CreateMessage own
Equal "an error in the script's object", Err.Number, 9
Equal "its text", Err.Description, "Subscript out of range"
Err.Clear
On Error Goto 0
