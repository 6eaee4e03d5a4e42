kind WGS
surface screen
size 8
box   37.0000
box  127.0000
box    1.0000
box    1.0000
point 37.20944444444444 127.09194444444445 가
point 37.709513888888885 127.0925 나-2
point 37.20986111111111 127.09208333333333 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-00-00
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   38-00-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-00-00
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  128-00-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 1002.3730 5935.7741 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1002.3730 5814.8141 1002.3545 6056.7436 0 6
Line 881.4130 5935.7741 1123.3078 5935.7634 0 6
fontsize = 8.0000
CurrentX = 790.5212
CurrentY = 5666.5395
print 가
DrawWidth = 2.0000
Circle 1006.2961 2404.4201 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1006.2961 2283.4601 1006.2875 2525.3681 0 6
Line 885.3361 2404.4201 1127.2407 2404.4149 0 6
fontsize = 8.0000
CurrentX = 794.4443
CurrentY = 2135.1855
print 나-2
DrawWidth = 2.0000
Circle 1003.3537 5932.8317 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1003.3537 5811.8717 1003.3782 6053.7804 0 6
Line 882.3938 5932.8317 1124.3314 5932.8272 0 6
fontsize = 8.0000
CurrentX = 791.5019
CurrentY = 5663.5972
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
