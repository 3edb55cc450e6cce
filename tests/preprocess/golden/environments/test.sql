set noexec off; -- &&ENV only
print 'running against &&SERVER';
