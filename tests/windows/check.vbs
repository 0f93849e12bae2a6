' What the VBScript tests share: VBScript has no include, so the driver puts it in front of each of them.
Option Explicit
Dim failures, checks
failures = 0
checks = 0

Sub Equal(what, is_, wanted)
  checks = checks + 1
  ' A number may be of another type, but it is not a text.
  If (VarType(is_) = vbString) = (VarType(wanted) = vbString) Then
    If is_ = wanted Then Exit Sub
  End If
  failures = failures + 1
  WScript.Echo "FAILED " & what & ": " & TypeName(is_) & " " & is_ & " where " & TypeName(wanted) & " " & wanted & " is due"
End Sub

Sub Holds(what, condition)
  checks = checks + 1
  If condition Then Exit Sub
  failures = failures + 1
  WScript.Echo "FAILED " & what
End Sub

' Call under On Error Resume Next, right behind what is to fail.
Sub Raised(what, number, source, description)
  Equal what & ", number", Err.Number, number
  Equal what & ", source", Err.Source, source
  Equal what & ", description", Err.Description, description
  Err.Clear
End Sub

Sub Finish
  WScript.Echo checks & " checks, " & failures & " failed"
  If failures > 0 Or checks = 0 Then WScript.Quit 1
End Sub
