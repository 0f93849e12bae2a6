' The last object goes right before the next one comes.
Dim message, i
For i = 1 To 100
  Set message = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
  message.PRstr_CloseReason = "00000011"
  Equal "a fresh object", message.PRstr_CloseReason, "00000011"
  Set message = Nothing
Next
