main = print (length (concat (replicate 100000 "[ab]")))
