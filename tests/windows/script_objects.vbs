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

On Error Resume Next
sent.CreateMessage New Refusing
' The host may keep the source and the text of it to itself.
Equal "the script's own error", Err.Number, -2147221503
Err.Clear
On Error Goto 0
