' A thousand objects, used and released; one more keeps the server while its memory is looked at.
Dim kept, i, made
Set kept = CreateObject("Vorlan.SB_GeneralFunctions")
kept.LongToBin 1, 8
Do Until WScript.StdIn.AtEndOfStream
  If WScript.StdIn.ReadLine = "" Then Exit Do
  For i = 1 To 1000
    Set made = CreateObject("Vorlan.SB_Ses_MsgSessionClose")
    made.Initialize Nothing
    If made.PRstr_MessageID <> "00000001" Then WScript.Quit 1
  Next
  Set made = Nothing
  WScript.Echo "done"
Loop
checks = 1
