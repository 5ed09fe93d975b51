"""An amount in Thai words, from Python: words.py 121.50"""

import sys

from zq7standard import BahtStringObject

print(BahtStringObject().BahtString(float(sys.argv[1])))
