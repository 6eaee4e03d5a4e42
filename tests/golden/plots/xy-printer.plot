kind XY
surface printer
size 8
box  419850
box  180000
box     350
box      50
point 420000.5 180000.0 가
point 420100.25 180300.0 B
.
ScaleMode = 1
Font = 굴림체
EndDoc
DrawWidth = 1.3000
Line 1034.1049 11907.2577 10765.1653 11907.2577 0 6
fontsize = 10.4000
CurrentX = 1217.7098
CurrentY = 11694.9565
print  419850
Line 1034.1049 10595.7941 10765.1653 10595.7941 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 10383.4929
print  419900
Line 1034.1049 9284.3305 10765.1653 9284.3305 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 9072.0292
print  419950
Line 1034.1049 7972.8668 10765.1653 7972.8668 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 7760.5656
print  420000
Line 1034.1049 6661.4032 10765.1653 6661.4032 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 6449.1020
print  420050
Line 1034.1049 5349.9395 10765.1653 5349.9395 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 5137.6383
print  420100
Line 1034.1049 4038.4759 10765.1653 4038.4759 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 3826.1747
print  420150
Line 1034.1049 2727.0123 10765.1653 2727.0123 0 6
fontsize = 10.4000
CurrentX = 758.6975
CurrentY = 2514.7110
print  420200
Line 1309.5123 12182.6651 1309.5123 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 431 5191 7  180000
SelectObject
DeleteObject
Line 2620.9759 12182.6651 2620.9759 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 977 5191 7  180050
SelectObject
DeleteObject
Line 3932.4395 12182.6651 3932.4395 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 1524 5191 7  180100
SelectObject
DeleteObject
Line 5243.9033 12182.6651 5243.9033 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 2070 5191 7  180150
SelectObject
DeleteObject
Line 6555.3667 12182.6651 6555.3667 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 2617 5191 7  180200
SelectObject
DeleteObject
Line 7866.8302 12182.6651 7866.8302 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 3163 5191 7  180250
SelectObject
DeleteObject
Line 9178.2943 12182.6651 9178.2943 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 3710 5191 7  180300
SelectObject
DeleteObject
Line 10489.7572 12182.6651 10489.7572 2451.6049 0 6
fontsize = 10.4000
print 
CreateFontIndirectA 86 900 400 1 굴림체
SelectObject
TextOutA 4256 5191 7  180350
SelectObject
DeleteObject
DrawWidth = 2.6000
Circle 1309.5123 7959.7522 49.1400 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.3000
DrawWidth = 1.8200
Line 1309.5123 7802.5042 1309.5123 8117.1278 0 6
Line 1152.2643 7959.7522 1466.8879 7959.7522 0 6
fontsize = 10.4000
CurrentX = 1034.1049
CurrentY = 7609.7473
print 가
DrawWidth = 2.6000
Circle 9178.2943 5343.3822 49.1400 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.3000
DrawWidth = 1.8200
Line 9178.2943 5186.1342 9178.2943 5500.7579 0 6
Line 9021.0464 5343.3822 9335.6698 5343.3822 0 6
fontsize = 10.4000
CurrentX = 8902.8867
CurrentY = 4993.3773
print B
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13535.3068
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 13.0000
CurrentX = 1034.1049
CurrentY = 13902.5166
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
EndDoc
